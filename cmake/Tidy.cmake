# The target "tidy" runs clang-tidy over the sources of all rooms; a source is checked again when it or any header changed.
function(kelvaro_add_tidy)
  find_program(CLANG_TIDY clang-tidy)
  if(NOT CLANG_TIDY)
    return()
  endif()
  get_property(sources GLOBAL PROPERTY KELVARO_SOURCES)
  get_property(rooms GLOBAL PROPERTY KELVARO_ROOMS)
  list(TRANSFORM rooms REPLACE "^([^|]*)\\|.*" "${CMAKE_SOURCE_DIR}/\\1/*.h")
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${rooms})
  set(stamps)
  foreach(source IN LISTS sources)
    file(RELATIVE_PATH name ${CMAKE_SOURCE_DIR} ${source})
    string(REPLACE "/" "." stamp ${name})
    set(stamp ${CMAKE_BINARY_DIR}/tidy/${stamp}.stamp)
    add_custom_command(OUTPUT ${stamp}
      COMMAND ${CLANG_TIDY} --quiet -p ${CMAKE_BINARY_DIR} ${source}
      COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
      DEPENDS ${source} ${headers} ${CMAKE_SOURCE_DIR}/.clang-tidy
      COMMENT "clang-tidy ${name}"
      VERBATIM)
    list(APPEND stamps ${stamp})
  endforeach()
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/tidy)
  add_custom_target(tidy DEPENDS ${stamps})
  if(TARGET kelvaro_shell)
    # Makes the headers of the dialogs.
    add_dependencies(tidy kelvaro_shell_autogen)
  endif()
endfunction()
