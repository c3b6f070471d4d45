# SPDX-License-Identifier: MIT
# What an installation for everybody on the computer consists of.
include(GNUInstallDirs)
set(KORVEL_RELEASE_DATE "" CACHE STRING "Day of the release, yyyy-mm-dd, for the pages that show it")
set(desktop ${CMAKE_CURRENT_LIST_DIR}/desktop)
set(pages ${CMAKE_BINARY_DIR}/pages)
configure_file(${desktop}/korvel2000.metainfo.xml.in ${pages}/korvel2000.metainfo.xml @ONLY)
configure_file(${desktop}/korvel2000.1.in ${pages}/korvel2000.1 @ONLY)
configure_file(${desktop}/almanac.1.in ${pages}/almanac.1 @ONLY)
configure_file(${desktop}/passage.1.in ${pages}/passage.1 @ONLY)

install(TARGETS korvel2000 almanac_command passage DESTINATION ${CMAKE_INSTALL_BINDIR})
# The tables of the sky are compiled in.
install(DIRECTORY data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/korvel2000 PATTERN sky EXCLUDE)
# The program shows it, so it is no document that may be left out of an installation.
install(DIRECTORY docs/manual DESTINATION ${CMAKE_INSTALL_DATADIR}/korvel2000)
install(FILES ${desktop}/korvel2000.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES shell/main/icon/korvel2000.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 24 32 48 64 128 256)
  install(FILES shell/main/icon/korvel2000-${size}.png DESTINATION ${icons}/${size}x${size}/apps
          RENAME korvel2000.png)
endforeach()
install(FILES ${pages}/korvel2000.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${pages}/korvel2000.1 ${pages}/almanac.1 ${pages}/passage.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
