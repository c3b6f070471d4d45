# SPDX-License-Identifier: MIT
# A room sees the rooms that it may know and no others: an include that points the wrong way does
# not compile, with the very include folders of the build.
#   cmake -DBUILD=folder -DSOURCE=folder -DCOMPILER=g++ -P Seams.cmake
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/CompileCommands.cmake)

set(probe ${BUILD}/seam.cpp)

# Whether a header is found with all that it includes; that is where a stray include fails.
function(is_seen header folders result)
  file(WRITE ${probe} "#include \"${header}\"\n")
  execute_process(COMMAND ${COMPILER} -std=c++20 -fPIC -E ${folders} ${probe}
                  RESULT_VARIABLE status OUTPUT_QUIET ERROR_QUIET)
  if(status EQUAL 0)
    set(${result} TRUE PARENT_SCOPE)
  else()
    set(${result} FALSE PARENT_SCOPE)
  endif()
endfunction()

# check_seam(target SEES headers.. MUST_NOT_SEE headers..)
function(check_seam target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SEES;MUST_NOT_SEE")
  read_target(${BUILD} ${target} sources folders)
  if(NOT sources)
    message(SEND_ERROR "no target ${target}")
  endif()
  # What it may see proves that the probe would have found the rest.
  foreach(header IN LISTS arg_SEES)
    is_seen(${header} "${folders}" seen)
    if(NOT seen)
      message(SEND_ERROR "${target} does not see ${header}")
    endif()
  endforeach()
  foreach(header IN LISTS arg_MUST_NOT_SEE)
    is_seen(${header} "${folders}" seen)
    if(seen)
      message(SEND_ERROR "${target} sees ${header}")
    endif()
  endforeach()
endfunction()

set(library navlib/angles.h)
set(toolkit QString)
set(fakes tests/app/FakeMachine.h tests/golden/Golden.h)
set(window forms/frmWind/frmWind.h)
set(calculation forms/frmWind/CalculateWind.h)

check_seam(navlib SEES ${library}
           MUST_NOT_SEE app/reading/Format.h shell/machine/Machine.h tidedata/astronomy.h
                        almanac/sky.h ${calculation} ${toolkit} ${fakes})
check_seam(almanac SEES ${library} almanac/sky.h erfa.h
           MUST_NOT_SEE app/reading/Format.h shell/machine/Machine.h tidedata/astronomy.h
                        ${calculation} ${toolkit} ${fakes})
check_seam(tidedata_core SEES ${library}
           MUST_NOT_SEE app/reading/Format.h almanac/sky.h ${toolkit} ${fakes})

# A floor's rooms, lowest first, each with a header of its own; a room sees those below it.
#   check_floor(ROOMS targets.. HEADERS headers.. SEES headers.. MUST_NOT_SEE headers..)
function(check_floor)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "ROOMS;HEADERS;SEES;MUST_NOT_SEE")
  set(below ${arg_SEES})
  set(above ${arg_HEADERS})
  foreach(room header IN ZIP_LISTS arg_ROOMS arg_HEADERS)
    list(APPEND below ${header})
    list(REMOVE_ITEM above ${header})
    check_seam(${room} SEES ${below} MUST_NOT_SEE ${above} ${arg_MUST_NOT_SEE} ${fakes})
  endforeach()
endfunction()

# Watch and working know the records, not each other.
check_floor(ROOMS app_reading app_records app_working
            HEADERS app/reading/Format.h app/records/FileStore.h app/working/Working.h
            SEES ${library}
            MUST_NOT_SEE app/watch/Alarms.h shell/machine/Machine.h tidedata/astronomy.h
                         ${calculation} ${toolkit})
check_seam(app_watch SEES app/records/FileStore.h app/watch/Alarms.h
           MUST_NOT_SEE app/working/Working.h shell/machine/Machine.h ${toolkit} ${fakes})
check_seam(app_reading SEES ${library} MUST_NOT_SEE app/machine/Questions.h)

# Routes: what they are knows no toolkit, their files its core library and no window.
check_seam(routes_route SEES app/working/Working.h routes/route/Route.h
           MUST_NOT_SEE routes/files/RouteFiles.h shell/machine/Machine.h ${calculation} ${toolkit} ${fakes})
check_seam(routes_files SEES routes/route/Route.h routes/files/RouteFiles.h ${toolkit}
           MUST_NOT_SEE shell/machine/Machine.h ${calculation} QWidget ${fakes})

# What the program as a whole does with its folder, with faults and at its end is for main alone.
set(of_program shell/machine/FolderLock.h shell/machine/ProgramFolder.h
    shell/machine/RecordsFolder.h shell/machine/FaultGuard.h shell/machine/SystemBell.h)
check_floor(ROOMS shell_screen shell_layout shell_controls shell_manual shell_program shell_paper shell_window
            HEADERS shell/screen/Screen.h shell/layout/Panels.h shell/controls/Boxes.h shell/manual/HelpDesk.h
                    shell/program/Program.h shell/paper/PaperMenu.h
                    shell/window/CalculatorWindow.h
            SEES ${library} app/watch/Alarms.h shell/machine/Machine.h ${toolkit}
            MUST_NOT_SEE shell/main/frmKORVEL2000.h ${of_program} ${calculation} ${window})
check_seam(shell_paper SEES routes/files/Gpx.h MUST_NOT_SEE forms/frmPassage/PassagePlan.h)
check_seam(shell_window SEES shell/paper/PaperMenu.h MUST_NOT_SEE routes/files/Gpx.h)
check_seam(shell_machine SEES shell/machine/Machine.h
           MUST_NOT_SEE shell/screen/Screen.h shell/main/frmKORVEL2000.h ${window} ${fakes})
check_seam(shell_main SEES shell/main/frmKORVEL2000.h shell/window/CalculatorWindow.h ${of_program}
           MUST_NOT_SEE ${calculation} ${window} ${fakes})

# Rooms of the two largest windows.
check_floor(ROOMS frmTIDE_stations frmTIDE_data frmTIDE_day frmTIDE_paper
            HEADERS forms/frmTIDE/stations/Stations.h forms/frmTIDE/data/TideData.h
                    forms/frmTIDE/day/PredictTide.h forms/frmTIDE/paper/TidePaper.h
            SEES app/working/Working.h
            MUST_NOT_SEE forms/frmTIDE/sheet/TideSheet.h ${calculation} ${toolkit})
check_floor(ROOMS frmTIDE_sheet frmTIDE_pages frmTIDE
            HEADERS forms/frmTIDE/sheet/TideSheet.h forms/frmTIDE/pages/TideReports.h
                    forms/frmTIDE/frmTIDE.h
            SEES forms/frmTIDE/day/PredictTide.h shell/window/CalculatorWindow.h
            MUST_NOT_SEE shell/main/frmKORVEL2000.h ${calculation})
check_floor(ROOMS frmSunSight_sight frmSunSight_fix frmSunSight_paper
            HEADERS forms/frmSunSight/sight/SightList.h forms/frmSunSight/fix/SightFix.h
                    forms/frmSunSight/paper/SightPaper.h
            SEES app/working/Working.h
            MUST_NOT_SEE forms/frmSunSight/panels/FixPanel.h ${calculation} ${toolkit})
check_floor(ROOMS frmSunSight_panels frmSunSight
            HEADERS forms/frmSunSight/panels/FixPanel.h forms/frmSunSight/frmSunSight.h
            SEES forms/frmSunSight/fix/SightFix.h shell/window/CalculatorWindow.h
            MUST_NOT_SEE shell/main/frmKORVEL2000.h ${calculation})

# Of the windows one alone knows the almanac: all others keep the series that they have.
check_seam(frmCompass_calculation SEES almanac/sky.h app/working/Working.h
           MUST_NOT_SEE tidedata/astronomy.h ${toolkit})
check_seam(frmSunMoon_calculation SEES ${library} MUST_NOT_SEE almanac/sky.h)

list_targets(${BUILD} targets)
set(calculations ${targets})
list(FILTER calculations INCLUDE REGEX "_calculation$")
foreach(calculation IN LISTS calculations)
  string(REPLACE _calculation "" window ${calculation})
  set(other frmWind)
  if(window STREQUAL other)
    set(other frmETA)
  endif()
  file(GLOB own RELATIVE ${SOURCE} ${SOURCE}/forms/${window}/frm*.h
       ${SOURCE}/forms/${window}/*Window.h)
  check_seam(${calculation} SEES ${library} app/working/Working.h
             MUST_NOT_SEE shell/machine/Machine.h app/watch/Alarms.h ${own} forms/${other}/Calculate${other}.h ${toolkit} ${fakes})
  if(NOT ${window} IN_LIST targets)
    continue() # a calculation that commands alone use so far
  endif()
  check_seam(${window} SEES shell/window/CalculatorWindow.h ${own}
             MUST_NOT_SEE shell/main/frmKORVEL2000.h ${of_program} forms/${other}/${other}.h ${fakes})
endforeach()
list(LENGTH calculations count)
if(count LESS 9)
  message(SEND_ERROR "only ${count} calculations were found")
endif()

# A path that climbs finds its way past every seam.
file(GLOB_RECURSE files ${SOURCE}/app/*.cpp ${SOURCE}/app/*.h ${SOURCE}/shell/*.cpp
     ${SOURCE}/shell/*.h ${SOURCE}/forms/*.cpp
     ${SOURCE}/forms/*.h ${SOURCE}/routes/*.cpp ${SOURCE}/routes/*.h ${SOURCE}/navlib/*.cpp
     ${SOURCE}/navlib/*.h ${SOURCE}/almanac/*.cpp ${SOURCE}/almanac/*.h ${SOURCE}/tidedata/*
     ${SOURCE}/tools/*.cpp ${SOURCE}/tools/*.h ${SOURCE}/tests/*.cpp ${SOURCE}/tests/*.h
     ${SOURCE}/bench/*.cpp ${SOURCE}/bench/*.h)
foreach(file IN LISTS files)
  file(STRINGS ${file} climbing REGEX "#[ \t]*include[ \t]*[<\"]([^>\"]*/)?\\.\\./")
  if(climbing)
    message(SEND_ERROR "${file}: ${climbing}")
  endif()
endforeach()
