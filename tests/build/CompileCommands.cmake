# SPDX-License-Identifier: MIT
# What the build compiles, read from its compile_commands.json.

# Sets targets to the names of all targets that compile something.
function(list_targets build targets)
  file(STRINGS ${build}/compile_commands.json commands REGEX "\"command\"")
  set(found)
  foreach(command IN LISTS commands)
    if(command MATCHES "CMakeFiles/([A-Za-z0-9_-]+)\\.dir/")
      list(APPEND found ${CMAKE_MATCH_1})
    endif()
  endforeach()
  list(REMOVE_DUPLICATES found)
  set(${targets} ${found} PARENT_SCOPE)
endfunction()

# Sets sources to the files of a target and folders to the options that name its include folders.
function(read_target build target sources folders)
  file(STRINGS ${build}/compile_commands.json commands REGEX "CMakeFiles/${target}\\.dir/.* -c ")
  set(files)
  foreach(command IN LISTS commands)
    string(REGEX MATCH " -c ([^ ]+\\.cpp)" match "${command}")
    set(file "${CMAKE_MATCH_1}")
    if(file AND NOT file MATCHES "^${build}/")
      list(APPEND files ${file})
      string(REGEX MATCHALL "(-I|-isystem )[^ ]+" options "${command}")
    endif()
  endforeach()
  string(REPLACE "-isystem " "-isystem;" options "${options}")
  set(${sources} ${files} PARENT_SCOPE)
  set(${folders} ${options} PARENT_SCOPE)
endfunction()
