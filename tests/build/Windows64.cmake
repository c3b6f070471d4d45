# SPDX-License-Identifier: MIT
# The toolkit-free rooms compile for 64-bit Windows, where long has 32 bits and paths are wide.
#   cmake -DBUILD=folder -P Windows64.cmake
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/CompileCommands.cmake)

find_program(MINGW x86_64-w64-mingw32-g++-posix)
if(NOT MINGW)
  message("skipped: no compiler for Windows (g++-mingw-w64-x86-64-posix)")
  return()
endif()
list_targets(${BUILD} targets)
list(FILTER targets EXCLUDE REGEX "_test$")
list(FILTER targets INCLUDE REGEX "^navlib$|^almanac$|^app_|^tidedata_core$|_calculation$|^routes_route$|^frmTIDE_(stations|data|day|paper)$|^frmSunSight_(sight|fix|paper)$")
set(count 0)
foreach(target IN LISTS targets)
  read_target(${BUILD} ${target} sources folders)
  execute_process(COMMAND ${MINGW} -std=c++20 -fsyntax-only -Wall -Wextra -Wconversion -Wshadow
                          -Werror ${folders} ${sources} RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(SEND_ERROR "${target} does not compile for Windows")
  endif()
  list(LENGTH sources length)
  math(EXPR count "${count} + ${length}")
endforeach()
if(count LESS 50)
  message(SEND_ERROR "only ${count} files were found")
endif()
message("${count} files compile for Windows")
