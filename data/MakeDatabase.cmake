# Makes a database from schema.sql and the tables of a folder.
# usage: cmake -D SQLITE3=PROGRAM -D SOURCE=FOLDER -D DATABASE=FILE -P MakeDatabase.cmake
set(unfinished ${DATABASE}.unfinished)
file(REMOVE ${unfinished})

# The file is thrown away when anything fails, so nothing is kept for undoing. The import reports a bad row and
# may go on, so whatever it says counts as a failure too.
execute_process(
  COMMAND ${SQLITE3} -batch -bail ${unfinished}
    "PRAGMA journal_mode = OFF"
    "PRAGMA synchronous = OFF"
    ".read schema.sql"
    ".import --csv --skip 1 countries.csv Country_Master"
    ".import --csv --skip 1 cities.csv City_Master"
    ".import --csv --skip 1 city_zones.csv CityZone"
    ".import --csv --skip 1 timezones.csv TimeZone"
    ".import --csv --skip 1 kaliyuga_years.csv KaliyugaYearDetails"
    ".import --csv --skip 1 chartsmaster.csv chartsmaster"
    "VACUUM"
  WORKING_DIRECTORY ${SOURCE}
  RESULT_VARIABLE result
  OUTPUT_QUIET
  ERROR_VARIABLE complaints)
if(NOT result EQUAL 0 OR NOT complaints STREQUAL "")
  file(REMOVE ${unfinished})
  message(FATAL_ERROR "The database cannot be made: ${complaints}")
endif()
file(RENAME ${unfinished} ${DATABASE})
