#include "store/SqliteErrors.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <string>

namespace kelvaro::store {

StoreError InWords(const SQLite::Exception &error, const std::filesystem::path &file) {
    const std::string detail = error.what();
    const std::string theFile = "The database file " + file.string();
    constexpr int primaryCode = 0xff;
    switch (error.getErrorCode() & primaryCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreError(theFile + " is locked by another program.");
    case SQLITE_READONLY:
        return StoreError(theFile + " or its folder is write-protected: nothing can be stored.");
    case SQLITE_NOTADB:
        return StoreError(theFile + " is damaged or no database.");
    case SQLITE_CORRUPT:
        return StoreError(theFile + " is damaged: " + detail + ".");
    case SQLITE_CANTOPEN:
        return StoreError(theFile + " cannot be opened: " + detail + ".");
    case SQLITE_FULL:
        return StoreError("There is no room left to store in " + file.string() + ".");
    case SQLITE_IOERR:
        return StoreError(theFile + " cannot be read or written: " + detail + ".");
    default:
        return StoreError(detail);
    }
}

StoreError MissingFile(const std::filesystem::path &file) {
    return StoreError("The database file " + file.string() + " is missing.");
}

} // namespace kelvaro::store
