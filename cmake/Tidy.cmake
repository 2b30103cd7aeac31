# The target "tidy" runs clang-tidy over the given sources; a source is checked again when it or any header changed.
function(kelvaro_add_tidy)
  find_program(CLANG_TIDY clang-tidy)
  if(NOT CLANG_TIDY)
    return()
  endif()
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS
    ${CMAKE_SOURCE_DIR}/runtime/*.h ${CMAKE_SOURCE_DIR}/store/*.h ${CMAKE_SOURCE_DIR}/astronomy/*.h ${CMAKE_SOURCE_DIR}/panchanga/*.h
    ${CMAKE_SOURCE_DIR}/presentation/*.h ${CMAKE_SOURCE_DIR}/analysis/*.h ${CMAKE_SOURCE_DIR}/report/*.h
    ${CMAKE_SOURCE_DIR}/horoscope/*.h ${CMAKE_SOURCE_DIR}/shell/*.h
    ${CMAKE_SOURCE_DIR}/tools/*.h)
  set(stamps)
  foreach(source ${ARGN})
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
endfunction()
