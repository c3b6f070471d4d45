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
set(shared app/reading/Format.h)
set(shell shell/program/Program.h)
set(toolkit QString)
set(fakes tests/app/FakeMachine.h tests/golden/Golden.h)

check_seam(navlib SEES ${library}
           MUST_NOT_SEE ${shared} ${shell} tidedata/astronomy.h forms/frmWind/CalculateWind.h
                        ${toolkit} ${fakes})
check_seam(app_core SEES ${library} ${shared}
           MUST_NOT_SEE ${shell} tidedata/astronomy.h forms/frmWind/CalculateWind.h ${toolkit} ${fakes})
check_seam(app_shell SEES ${library} ${shared} ${shell} ${toolkit}
           MUST_NOT_SEE forms/frmWind/CalculateWind.h forms/frmWind/frmWind.h ${fakes})
check_seam(tidedata_core SEES ${library} MUST_NOT_SEE ${shared} ${toolkit} ${fakes})

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
  check_seam(${calculation} SEES ${library} ${shared}
             MUST_NOT_SEE ${shell} ${own} forms/${other}/Calculate${other}.h ${toolkit} ${fakes})
  check_seam(${window} SEES ${shell} ${own} MUST_NOT_SEE forms/${other}/${other}.h ${fakes})
endforeach()
list(LENGTH calculations count)
if(count LESS 10)
  message(SEND_ERROR "only ${count} calculations were found")
endif()

# A path that climbs finds its way past every seam.
file(GLOB_RECURSE files ${SOURCE}/app/*.cpp ${SOURCE}/app/*.h ${SOURCE}/forms/*.cpp
     ${SOURCE}/forms/*.h ${SOURCE}/navlib/*.cpp ${SOURCE}/navlib/*.h ${SOURCE}/tidedata/*
     ${SOURCE}/tools/*.cpp ${SOURCE}/tools/*.h ${SOURCE}/tests/*.cpp ${SOURCE}/tests/*.h
     ${SOURCE}/bench/*.cpp ${SOURCE}/bench/*.h)
foreach(file IN LISTS files)
  file(STRINGS ${file} climbing REGEX "#[ \t]*include[ \t]*[<\"]([^>\"]*/)?\\.\\./")
  if(climbing)
    message(SEND_ERROR "${file}: ${climbing}")
  endif()
endforeach()
