#include "store/database/DatabaseFile.h"

#include "store/database/Connection.h"
#include "store/database/SqliteErrors.h"

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <fstream>
#include <random>
#include <string>
#include <system_error>

namespace kelvaro::store {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view copiedMark = "DBMirvaneBasic.copied";
constexpr std::string_view originalMark = "DBMirvaneBasic.original";
constexpr int busyMilliseconds = 1000;

/// A file name that no other start of the program uses.
std::string PassingName() {
    return ".DBMirvaneBasic-" + std::to_string(std::random_device()());
}

/// The super-user could write into the folder of an installed program, but the charts would go with it.
bool IsInstalled(const fs::path &programFolder) {
    std::error_code unreadable;
    return fs::exists(programFolder / originalMark, unreadable);
}

/// Only trying tells: permissions, access lists and write-protected media all have a say.
bool CanWriteInto(const fs::path &folder) {
    const fs::path probe = folder / PassingName();
    if (!std::ofstream(probe)) {
        return false;
    }
    std::error_code ignored;
    fs::remove(probe, ignored);
    return true;
}

void LeaveMark(const fs::path &userFolder) {
    std::ofstream mark(userFolder / copiedMark);
    mark << "The database in this folder was copied from the program's folder at its first start.\n";
    if (!mark.flush()) {
        throw StoreError("The folder " + userFolder.string() + " cannot be written.");
    }
}

/// Copies through SQLite, which checks what it reads and flushes what it writes to the disk. A copy that is
/// broken off never bears the final name.
void CopyDatabase(const fs::path &from, const fs::path &to) {
    const fs::path unfinished = to.parent_path() / PassingName();
    try {
        SQLite::Database source(from.string(), SQLite::OPEN_READONLY, busyMilliseconds);
        SQLite::Database copy(unfinished.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        if (SQLite::Backup(copy, source).executeStep() != SQLITE_DONE) {
            throw StoreError("The database file " + from.string() + " is locked by another program.");
        }
    } catch (...) {
        std::error_code ignored;
        fs::remove(unfinished, ignored);
        throw;
    }
    fs::rename(unfinished, to);
}

void CopyForUser(const fs::path &programFile, const fs::path &userFolder) {
    Connection().Open(programFile);
    try {
        fs::create_directories(userFolder);
        if (!CanWriteInto(userFolder)) {
            throw StoreError("The folder " + userFolder.string() + " for the database cannot be written.");
        }
        CopyDatabase(programFile, userFolder / databaseFileName);
    } catch (const SQLite::Exception &error) {
        throw StoreError("The database cannot be copied into the folder " + userFolder.string() + ": " +
                         InWords(error, programFile));
    } catch (const fs::filesystem_error &error) {
        throw StoreError("The database cannot be copied into the folder " + userFolder.string() + ": " +
                         error.code().message() + ".");
    }
}

} // namespace

fs::path FindDatabaseFile(const fs::path &programFolder, const fs::path &userFolder) {
    fs::path programFile = programFolder / databaseFileName;
    if (!IsInstalled(programFolder) && CanWriteInto(programFolder)) {
        return programFile;
    }
    fs::path userFile = userFolder / databaseFileName;
    std::error_code unreadable;
    if (!fs::exists(userFolder / copiedMark, unreadable)) {
        if (!fs::exists(userFile, unreadable)) {
            CopyForUser(programFile, userFolder);
        }
        // The mark comes last: a start that is broken off before it finds the copy and only leaves the mark.
        LeaveMark(userFolder);
    }
    return userFile;
}

} // namespace kelvaro::store
