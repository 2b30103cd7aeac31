# Installs for Windows what the installer holds beside Qt and the licences: all in one folder, with the database as it is
# at the user's first start. Tools for developers are not installed.
target_sources(kelvaro PRIVATE ${CMAKE_BINARY_DIR}/kelvaro.rc)
enable_language(RC)
configure_file(packaging/windows/kelvaro.rc.in ${CMAKE_BINARY_DIR}/kelvaro.rc @ONLY)
set_target_properties(kelvaro PROPERTIES WIN32_EXECUTABLE ON)

install(TARGETS kelvaro RUNTIME DESTINATION .)
install(FILES ${KELVARO_SEED_DATABASE} DESTINATION . RENAME DBMirvaneBasic.mdb)
install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/zoneinfo DESTINATION .)
