# Installs the program, and makes a Debian package of it: `cpack` in a build directory.
#
# The program lies with its database in a folder of its own; a link on the path starts it. The database is there for
# reading only: each user's own is copied from it at the user's first start. Tools for developers are not installed.
set(program_folder lib/kelvaro-basic)
set(documents_folder share/doc/kelvaro-basic)

# Of all that is built, a package needs the program alone.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
install(CODE "execute_process(
  COMMAND \"${CMAKE_COMMAND}\" --build \"${CMAKE_BINARY_DIR}\" --target kelvaro
  COMMAND_ERROR_IS_FATAL ANY)")

install(TARGETS kelvaro RUNTIME DESTINATION ${program_folder})
install(FILES ${KELVARO_SEED_DATABASE} DESTINATION ${program_folder} RENAME DBMirvaneBasic.mdb
  PERMISSIONS OWNER_READ GROUP_READ WORLD_READ)
install(FILES packaging/DBMirvaneBasic.original DESTINATION ${program_folder})
install(CODE "file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
  file(CREATE_LINK ../${program_folder}/kelvaro \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/kelvaro\" SYMBOLIC)")
install(FILES packaging/kelvaro-basic.svg DESTINATION share/icons/hicolor/scalable/apps)
# Drawn from kelvaro-basic-small.svg, whose few lines stay apart at these sizes.
foreach(size 16 22 24 32)
  install(FILES packaging/icons/kelvaro-basic-${size}.png
    DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME kelvaro-basic.png)
endforeach()
install(FILES packaging/kelvaro-basic.desktop DESTINATION share/applications)
install(FILES packaging/copyright drawing/fonts/OFL-1.1.txt docs/guide.md DESTINATION ${documents_folder})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kelvaro-basic)
set(CPACK_PACKAGE_VENDOR "Kelvaro Technologies Pvt Ltd")
set(CPACK_PACKAGE_CONTACT "Kelvaro Technologies Pvt Ltd <support@kelvaro.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.kelvaro.example")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Vedic astrology on the desktop")
set(CPACK_PACKAGE_DESCRIPTION
"The whole horoscope of a birth, computed by the program itself: the almanac of
the moment, Rasi, Navamsa and Bhava charts in South, North or East style, the
planet table, the houses, the divisional charts, the Ashtakavarga and the
Vimshottari dasa, on the screen and on paper. A gazetteer of places and time
zones comes with it.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Not seen by the look at the libraries: strict tables, and the records of time zones.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libsqlite3-0 (>= 3.37), tzdata")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, fonts-lohit-deva, hicolor-icon-theme, qt6-wayland")
# For names in the scripts of the world.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-noto-core")
include(CPack)
