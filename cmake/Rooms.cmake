# The rooms of the house: a library for each folder of code, linking only rooms below it.
#
#   kelvaro_add_room(NAME [FOLDER folder] [SOURCES file...] [PROGRAM file] [ELSEWHERE file...] [BELOW room...])
#
# makes the library kelvaro_NAME from sources of the present folder; the source of a program that stands in the same room is
# named and left to its own target, and so are sources for other systems. A room may include itself and the rooms below it,
# those below them included. All headers are found from the root of the tree, so the compiler alone would let an include
# climb: every build looks at the includes first.

# The rooms' folders with their sources and with the folders that they may include, one "folder|sources|folders" a room.
define_property(GLOBAL PROPERTY KELVARO_ROOMS)
define_property(GLOBAL PROPERTY KELVARO_SOURCES)

# Lets a folder include the folders given, itself and the rooms below the room that it belongs to.
function(kelvaro_allow_includes folder sources)
  string(REPLACE ";" "," sources "${sources}")
  string(REPLACE ";" "," allowed "${ARGN}")
  set_property(GLOBAL APPEND PROPERTY KELVARO_ROOMS "${folder}|${sources}|${allowed}")
endfunction()

function(kelvaro_add_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "FOLDER;PROGRAM" "SOURCES;ELSEWHERE;BELOW")
  if(NOT room_FOLDER)
    set(room_FOLDER ${name})
  endif()
  set(folders ${room_FOLDER})
  set(libraries kelvaro_flags)
  foreach(below IN LISTS room_BELOW)
    get_target_property(folders_below kelvaro_${below} KELVARO_FOLDERS)
    list(APPEND folders ${folders_below})
    list(APPEND libraries kelvaro_${below})
  endforeach()
  list(REMOVE_DUPLICATES folders)
  if(room_SOURCES)
    add_library(kelvaro_${name} STATIC ${room_SOURCES})
    target_link_libraries(kelvaro_${name} PUBLIC ${libraries})
  else()
    add_library(kelvaro_${name} INTERFACE)
    target_link_libraries(kelvaro_${name} INTERFACE ${libraries})
  endif()
  set_target_properties(kelvaro_${name} PROPERTIES KELVARO_FOLDERS "${folders}")
  add_dependencies(kelvaro_${name} kelvaro_rooms)

  set(sources)
  list(TRANSFORM room_ELSEWHERE PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE elsewhere)
  foreach(source IN LISTS room_SOURCES room_PROGRAM room_ELSEWHERE)
    cmake_path(ABSOLUTE_PATH source NORMALIZE)
    if(NOT source IN_LIST elsewhere)
      set_property(GLOBAL APPEND PROPERTY KELVARO_SOURCES ${source})
    endif()
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
    list(APPEND sources ${source})
  endforeach()
  kelvaro_allow_includes(${room_FOLDER} "${sources}" ${folders})
endfunction()

# Looks at the includes of all rooms, at every build. To be called when all rooms are known.
function(kelvaro_check_rooms)
  get_property(rooms GLOBAL PROPERTY KELVARO_ROOMS)
  list(JOIN rooms "\n" lines)
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/rooms.txt CONTENT "${lines}\n")
endfunction()

add_custom_target(kelvaro_rooms ALL
  COMMAND ${CMAKE_COMMAND} -D ROOMS=${CMAKE_BINARY_DIR}/rooms.txt -D ROOT=${CMAKE_SOURCE_DIR}
    -P ${CMAKE_CURRENT_LIST_DIR}/CheckRooms.cmake
  VERBATIM)
