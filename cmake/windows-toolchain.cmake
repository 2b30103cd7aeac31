# For Windows on x86_64 with the compilers of mingw-w64. On Windows itself CMake finds the compiler alone, and this file
# only says how to link. Elsewhere libraries are looked for in CMAKE_PREFIX_PATH of the environment and among those of the
# compiler, and Wine, where there is one, runs the tests.
#
# The compiler's own libraries become part of each program and of each shared library. So a tool is one file, and no other
# copy of them that lies on the path of some machine can stand in for the right one. Qt's libraries stay shared, as their
# licence asks; between them and the program pass Qt's types and system calls, and no exception: those of the core end in
# the slot that called it.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT -static)
endforeach()

if(NOT CMAKE_HOST_WIN32)
  set(CMAKE_SYSTEM_NAME Windows)
  set(CMAKE_SYSTEM_PROCESSOR x86_64)
  set(target x86_64-w64-mingw32)
  # Threads of the standard library need the compilers with POSIX threads, which have a name of their own where there are
  # others beside them.
  find_program(CMAKE_C_COMPILER NAMES ${target}-gcc-posix ${target}-gcc REQUIRED)
  find_program(CMAKE_CXX_COMPILER NAMES ${target}-g++-posix ${target}-g++ REQUIRED)
  find_program(CMAKE_RC_COMPILER NAMES ${target}-windres REQUIRED)

  # Kept for a build that finds it has to configure anew, in another environment.
  if(NOT "$ENV{CMAKE_PREFIX_PATH}" STREQUAL "")
    set(WINDOWS_LIBRARIES "$ENV{CMAKE_PREFIX_PATH}" CACHE STRING "Where libraries for Windows are looked for" FORCE)
  endif()
  cmake_path(CONVERT "${WINDOWS_LIBRARIES}" TO_CMAKE_PATH_LIST CMAKE_FIND_ROOT_PATH)
  list(APPEND CMAKE_FIND_ROOT_PATH /usr/${target})
  set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
  set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
  set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
  set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

  find_program(WINE wine)
  if(WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE})
  endif()
endif()
