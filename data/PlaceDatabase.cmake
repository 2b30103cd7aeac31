# Puts the seed database in place as the program's database, but never over one that a user has written to: only
# where there is none yet, or where the file there is byte for byte the seed that an earlier build put there.
# usage: cmake -D SEED=FILE -D DATABASE=FILE -D RECORD=FILE -P PlaceDatabase.cmake
# RECORD keeps the checksum of the seed that was put in place last.
file(SHA256 ${SEED} seed)

if(EXISTS ${DATABASE})
  file(SHA256 ${DATABASE} present)
  if(present STREQUAL seed)
    file(WRITE ${RECORD} ${seed})
    return()
  endif()
  set(placed "")
  if(EXISTS ${RECORD})
    file(READ ${RECORD} placed)
  endif()
  # A journal beside the file belongs to a change that was broken off: the file is not what it seems.
  if(NOT present STREQUAL placed OR EXISTS ${DATABASE}-journal)
    if(NOT placed STREQUAL seed)
      message(STATUS "The database ${DATABASE} has been written to and stays as it is; the new seed is ${SEED}")
    endif()
    return()
  endif()
endif()

# A journal that outlived its database would be played back into the new one.
file(REMOVE ${DATABASE}-journal)
file(COPY_FILE ${SEED} ${DATABASE}.unfinished)
file(RENAME ${DATABASE}.unfinished ${DATABASE})
file(WRITE ${RECORD} ${seed})
