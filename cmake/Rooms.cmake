# SPDX-License-Identifier: MIT
# What the build does for every room of the house.

# Gives a target the headers of its room, and with them whoever links the target. They are reached
# as "navlib/angles.h" through a folder of the target's own that holds nothing else, so a file sees
# the rooms that it may know and no others: an include that points the wrong way does not compile.
#   give_headers(navlib PUBLIC angles.h ..)
function(give_headers target scope)
  set(folder ${CMAKE_BINARY_DIR}/rooms/${target})
  file(REMOVE_RECURSE ${folder})
  file(MAKE_DIRECTORY ${folder})
  foreach(header ${ARGN})
    file(REAL_PATH ${header} header)
    file(RELATIVE_PATH name ${CMAKE_SOURCE_DIR} ${header})
    get_filename_component(room ${folder}/${name} DIRECTORY)
    file(MAKE_DIRECTORY ${room})
    file(CREATE_LINK ${header} ${folder}/${name} SYMBOLIC)
  endforeach()
  target_include_directories(${target} ${scope} ${folder})
endfunction()

# Precompiled headers: most of the build's time is the reading of the toolkit's and of the test
# library's headers. KORVEL_PCH=OFF builds without them; nothing may depend on them.
option(KORVEL_PCH "Precompile the headers of the toolkit and of the test library" ON)

# make_headers_ready(NAME LINK libraries.. HEADERS headers..) makes a set of precompiled headers,
# use_headers(TARGET NAME) compiles a target with it. Both must be compiled with the same flags.
function(make_headers_ready name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK;HEADERS")
  if(NOT KORVEL_PCH)
    return()
  endif()
  set(source ${CMAKE_BINARY_DIR}/rooms/${name}.cpp)
  if(NOT EXISTS ${source})
    file(WRITE ${source} "")
  endif()
  add_library(${name} OBJECT ${source})
  target_link_libraries(${name} PRIVATE ${arg_LINK})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

function(use_headers target name)
  if(TARGET ${name})
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()

# The files of a room are compiled some at once: they read the same headers. What is unnamed in one
# file must not be named alike in another file of its room. KORVEL_UNITY=OFF compiles each alone.
option(KORVEL_UNITY "Compile the files of a room several at once" ON)
set(CMAKE_UNITY_BUILD ${KORVEL_UNITY})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 10)

# A room: a library of the files of a folder, its headers for whoever links it.
#   add_room(app_reading reading LINK navlib)
function(add_room name folder)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINK")
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${folder}/*.h)
  add_library(${name} STATIC ${sources} ${headers})
  give_headers(${name} PUBLIC ${headers})
  target_link_libraries(${name} PUBLIC ${arg_LINK})
endfunction()

# The same for a room that knows the toolkit.
function(add_toolkit_room name folder)
  add_room(${name} ${folder} ${ARGN})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PUBLIC Qt6::Widgets)
  use_headers(${name} toolkit_headers)
endfunction()
