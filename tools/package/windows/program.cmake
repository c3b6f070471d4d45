# SPDX-License-Identifier: MIT
# What makes a program one for Windows: no console beside its windows; icon, version and manifest in
# it; of the toolkit's static plug-ins those alone that it uses.
set(windows_package ${CMAKE_CURRENT_LIST_DIR})
set(resources ${CMAKE_BINARY_DIR}/resources)
configure_file(${windows_package}/korvel2000.rc.in ${resources}/korvel2000.rc @ONLY)
configure_file(${windows_package}/korvel2000.manifest.in ${resources}/korvel2000.manifest @ONLY)
find_program(ICOTOOL icotool REQUIRED)
set(pictures ${CMAKE_SOURCE_DIR}/shell/main/icon/korvel2000)
# Compressed pictures for the large sizes alone: older lists and boxes read no other small ones.
execute_process(
  COMMAND ${ICOTOOL} --create --output=${resources}/korvel2000.ico
          ${pictures}-16.png ${pictures}-24.png ${pictures}-32.png ${pictures}-48.png
          ${pictures}-64.png --raw=${pictures}-128.png --raw=${pictures}-256.png
  COMMAND_ERROR_IS_FATAL ANY)

function(make_windows_program name)
  target_sources(${name} PRIVATE ${resources}/korvel2000.rc)
  set_target_properties(${name} PROPERTIES WIN32_EXECUTABLE ON)
  qt_import_plugins(${name} EXCLUDE_BY_TYPE imageformats styles)
endfunction()
