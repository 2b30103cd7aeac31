#include "store/database/SqliteErrors.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

namespace kelvaro::store {

std::string InWords(const SQLite::Exception &error, const std::filesystem::path &file) {
    std::string detail = error.what();
    const std::string theFile = "The database file " + file.string();
    constexpr int primaryCode = 0xff;
    switch (error.getErrorCode() & primaryCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return theFile + " is locked by another program.";
    case SQLITE_READONLY:
        return theFile + " or its folder is write-protected: nothing can be stored.";
    case SQLITE_NOTADB:
        return theFile + " is damaged or no database.";
    case SQLITE_CORRUPT:
        return theFile + " is damaged: " + detail + ".";
    case SQLITE_CANTOPEN:
        return theFile + " cannot be opened: " + detail + ".";
    case SQLITE_FULL:
        return "There is no room left to store in " + file.string() + ".";
    case SQLITE_IOERR:
        return theFile + " cannot be read or written: " + detail + ".";
    default:
        return detail;
    }
}

} // namespace kelvaro::store
