#include "store/database/DatabaseFile.h"

#include "runtime/Paths.h"
#include "store/database/Connection.h"
#include "store/database/FaultTexts.h"
#include "store/database/FolderAccess.h"
#include "system/System.h"

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace kelvaro::store {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view copiedMark = "DBMirvaneBasic.copied";
constexpr std::string_view originalMark = "DBMirvaneBasic.original";

/// The super-user could write into the folder of a program that is installed for all, but the charts would go
/// with it.
bool IsShared(const fs::path &programFolder) {
    std::error_code unreadable;
    return fs::exists(programFolder / originalMark, unreadable);
}

void LeaveMark(const fs::path &userFolder) {
    const std::error_code failure =
        WriteTo(userFolder / copiedMark,
                "The database in this folder was copied from the program's folder at its first start.\n");
    if (failure) {
        throw fs::filesystem_error("", failure);
    }
}

/// Copies through SQLite, which checks what it reads and flushes what it writes to the disk. A copy that is
/// broken off never bears the final name.
void CopyDatabase(const fs::path &from, const fs::path &to) {
    const fs::path unfinished = to.parent_path() / PassingName();
    try {
        constexpr int longestWait = static_cast<int>(Connection::patience.count());
        SQLite::Database source(TextOfPath(from), SQLite::OPEN_READONLY, longestWait);
        SQLite::Database copy(TextOfPath(unfinished), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        if (SQLite::Backup(copy, source).executeStep() != SQLITE_DONE) {
            throw StoreError("The database file " + TextOfPath(from) + " is locked by another program.");
        }
    } catch (...) {
        // A disk too full to undo a change leaves its journal beside the file.
        for (const char *ending : {"", "-journal"}) {
            std::error_code ignored;
            fs::remove(fs::path(unfinished) += ending, ignored);
        }
        throw;
    }
    fs::rename(unfinished, to);
}

/// Why the copy cannot be made, and what to do.
StoreError NotCopied(const fs::path &userFolder, const std::string &cause, const std::string &advice) {
    StoreError error("The database cannot be copied into the folder " + TextOfPath(userFolder) + ": " +
                     cause + ". " + advice + ", then start the program again.");
    return error;
}

StoreError NotCopied(const fs::path &userFolder, const std::error_code &error) {
    return TellsOfNoRoom(error)
               ? NotCopied(userFolder, "there is no room left on the disk of that folder", "Make room")
               : NotCopied(userFolder, error.default_error_condition().message(),
                           "Let that folder be written");
}

StoreError NotCopied(const fs::path &userFolder, const SQLite::Exception &error,
                     const fs::path &programFile) {
    constexpr int primaryCode = 0xff;
    switch (error.getErrorCode() & primaryCode) {
    case SQLITE_FULL:
        return NotCopied(userFolder, std::make_error_code(std::errc::no_space_on_device));
    case SQLITE_IOERR: // a quota too
        return NotCopied(userFolder, "the disk of that folder is full or fails", "Make room");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB: {
        StoreError damaged(InWords(error, programFile));
        return damaged;
    }
    default:
        return NotCopied(userFolder, "it cannot be written", "Let it be written");
    }
}

/// The folders of a path that are not there yet, the innermost first.
std::vector<fs::path> MissingFolders(const fs::path &folder) {
    std::vector<fs::path> missing;
    std::error_code unreadable;
    for (fs::path each = folder; !each.empty() && !fs::exists(each, unreadable); each = each.parent_path()) {
        missing.push_back(each);
    }
    return missing;
}

/// Runs a step of the first start; where it fails, what was made by then is taken away, the last thing first.
template <typename Step>
void AllOrNothing(Step step, const fs::path &programFile, const fs::path &userFolder,
                  const std::vector<fs::path> &made) {
    const auto undo = [&made] {
        for (const fs::path &each : made) {
            std::error_code ignored;
            fs::remove(each, ignored);
        }
    };
    try {
        step();
    } catch (const SQLite::Exception &error) {
        undo();
        throw NotCopied(userFolder, error, programFile);
    } catch (const fs::filesystem_error &error) {
        undo();
        throw NotCopied(userFolder, error.code());
    } catch (...) {
        undo();
        throw;
    }
}

/// Copies the program's file unless the user has one, and leaves the mark. The mark comes last: a start that
/// is broken off before it finds the copy and only leaves the mark.
void SetUp(const fs::path &userFolder, const fs::path &programFile) {
    const fs::path userFile = userFolder / databaseFileName;
    std::error_code unreadable;
    const bool hasFile = fs::exists(userFile, unreadable);
    if (!hasFile) {
        Connection().Open(programFile);
    }
    std::vector<fs::path> made = MissingFolders(userFolder);
    AllOrNothing(
        [&] {
            if (!hasFile) {
                fs::create_directories(userFolder);
                CopyDatabase(programFile, userFile);
                made.insert(made.begin(), userFile);
            }
            made.insert(made.begin(), userFolder / copiedMark);
            LeaveMark(userFolder);
        },
        programFile, userFolder, made);
}

} // namespace

fs::path FindDatabaseFile(const fs::path &programFolder, const fs::path &userFolder) {
    fs::path programFile = programFolder / databaseFileName;
    if (!IsShared(programFolder) && CanWriteInto(programFolder)) {
        return programFile;
    }
    fs::path userFile = userFolder / databaseFileName;
    std::error_code unreadable;
    if (!fs::exists(userFolder / copiedMark, unreadable)) {
        SetUp(userFolder, programFile);
    }
    return userFile;
}

} // namespace kelvaro::store
