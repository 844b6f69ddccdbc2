# What an installed Kivu consists of on Linux. The windows of a desktop are told apart by the application's id: its
# desktop file, its icons and its metainfo bear that name, and the program tells it.

if(NOT KIVU_WINDOW OR WIN32)
  return()
endif()
include(GNUInstallDirs)
set(KIVU_SCREENSHOT_URL "" CACHE STRING "Address of a screenshot for software catalogues")
kivu_check_address(KIVU_SCREENSHOT_URL "https")
if(NOT KIVU_APP_ID MATCHES "^[A-Za-z_][A-Za-z0-9_]*(\\.[A-Za-z_][A-Za-z0-9_]*)+$")
  message(FATAL_ERROR "KIVU_APP_ID must be words with points between them: ${KIVU_APP_ID}")
endif()

set(packaging ${PROJECT_SOURCE_DIR}/packaging/linux)
set(made ${PROJECT_BINARY_DIR}/packaging)
set(data ${CMAKE_INSTALL_DATADIR})
set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc)

install(TARGETS Kivu RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

configure_file(${packaging}/kivu.desktop.in ${made}/${KIVU_APP_ID}.desktop @ONLY)
install(FILES ${made}/${KIVU_APP_ID}.desktop DESTINATION ${data}/applications)

# Only what a build has an address for is named.
set(KIVU_METAINFO_ADDRESSES "")
if(NOT KIVU_HOME_PAGE STREQUAL "")
  string(REPLACE "&" "&amp;" address "${KIVU_HOME_PAGE}")
  string(APPEND KIVU_METAINFO_ADDRESSES "\n  <url type=\"homepage\">${address}</url>")
endif()
if(NOT KIVU_SCREENSHOT_URL STREQUAL "")
  string(REPLACE "&" "&amp;" address "${KIVU_SCREENSHOT_URL}")
  string(APPEND KIVU_METAINFO_ADDRESSES "
  <screenshots>
    <screenshot type=\"default\">
      <caption>The games of one emulator</caption>
      <caption xml:lang=\"de\">Die Spiele eines Emulators</caption>
      <image>${address}</image>
    </screenshot>
  </screenshots>")
endif()
configure_file(${packaging}/kivu.metainfo.xml.in ${made}/${KIVU_APP_ID}.metainfo.xml @ONLY)
install(FILES ${made}/${KIVU_APP_ID}.metainfo.xml DESTINATION ${data}/metainfo)

set(icons ${PROJECT_SOURCE_DIR}/assets)
foreach(size 16 24 32 48 64 128 256 512)
  install(FILES ${icons}/icon/kivu-${size}.png DESTINATION ${data}/icons/hicolor/${size}x${size}/apps
          RENAME ${KIVU_APP_ID}.png)
endforeach()
install(FILES ${icons}/svg/kivu.svg DESTINATION ${data}/icons/hicolor/scalable/apps RENAME ${KIVU_APP_ID}.svg)

configure_file(${packaging}/Kivu.1.in ${made}/Kivu.1 @ONLY)
install(FILES ${made}/Kivu.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# Those for players, with their pictures; the others are for those who build it.
install(FILES README.md CHANGELOG.md LICENSE DESTINATION ${documents}/kivu)
install(DIRECTORY docs/book DESTINATION ${documents}/kivu/docs)
install(FILES docs/install.md docs/profiles.md docs/skins.md DESTINATION ${documents}/kivu/docs)
# Examples that they lead to.
install(PROGRAMS docs/mount-udisksctl.sh docs/startscript-xdotool.sh DESTINATION ${documents}/kivu/docs)

# Beside bin/ it also tells the program that it is installed and keeps its data with the user's.
install(DIRECTORY assets/skins/ DESTINATION ${data}/kivu/skins)

# The demo collection, to be laid out for each user who wants it.
option(KIVU_DEMO "Build and install the demo collection as well (needs nasm)" OFF)
if(NOT KIVU_DEMO)
  return()
endif()
set(games ${PROJECT_BINARY_DIR}/demo-games)
file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/demo/games/*.list ${PROJECT_SOURCE_DIR}/demo/games/src/*)
add_custom_command(OUTPUT ${games}/complete
                   COMMAND ${PROJECT_SOURCE_DIR}/demo/build-games.sh ${games}/Games
                   COMMAND ${CMAKE_COMMAND} -E touch ${games}/complete
                   DEPENDS ${sources} ${PROJECT_SOURCE_DIR}/demo/build-games.sh VERBATIM)
add_custom_target(kivu_demo ALL DEPENDS ${games}/complete)
configure_file(${packaging}/kivu-demo.desktop.in ${made}/${KIVU_APP_ID}.Demo.desktop @ONLY)
configure_file(${packaging}/kivu-demo.1.in ${made}/kivu-demo.1 @ONLY)
file(WRITE ${made}/version "${PROJECT_VERSION}\n")
install(PROGRAMS ${packaging}/kivu-demo DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${made}/${KIVU_APP_ID}.Demo.desktop DESTINATION ${data}/applications)
install(FILES ${made}/kivu-demo.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES demo/README.md DESTINATION ${documents}/kivu-demo)
install(PROGRAMS demo/lay-out.sh demo/kivu-dosbox.sh DESTINATION ${data}/kivu-demo)
install(FILES ${made}/version DESTINATION ${data}/kivu-demo)
install(DIRECTORY demo/config DESTINATION ${data}/kivu-demo)
install(DIRECTORY demo/pictures DESTINATION ${data}/kivu-demo PATTERN "*.py" EXCLUDE)
install(DIRECTORY ${games}/Games DESTINATION ${data}/kivu-demo)
