#include "store/database/Connection.h"

#include "runtime/Paths.h"
#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/FaultTexts.h"
#include "store/database/MemoryCopy.h"
#include "store/database/NameCollation.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace kelvaro::store {

namespace {

constexpr std::array<std::string_view, 11> neededTables = {
    "ChartSave",           "GChartSave",   "Country_Master", "City_Master",    "TimeZone",       "Preference",
    "KaliyugaYearDetails", "chartsmaster", "tempBhukthi",    "tempdasasandhi", "PersonalDetails"};

std::filesystem::path ExistingFile(const std::filesystem::path &file) {
    std::error_code unreadable;
    if (!std::filesystem::exists(file, unreadable) && !unreadable) {
        throw StoreError("The database file " + TextOfPath(file) +
                         " is missing. Put a backup copy of it in its place.");
    }
    return std::filesystem::absolute(file);
}

/// Reading the names of the tables is also what tells a locked or a damaged file.
void CheckTables(SQLite::Database &database, const std::filesystem::path &file) {
    std::vector<std::string> found;
    SQLite::Statement tables(database, "select name from sqlite_schema where type = 'table'");
    while (tables.executeStep()) {
        found.push_back(tables.getColumn(0).getString());
    }
    for (const std::string_view needed : neededTables) {
        if (std::ranges::none_of(
                found, [needed](const std::string &name) { return SameIgnoringCase(name, needed); })) {
            throw StoreError("The file " + TextOfPath(file) +
                             " is no database of this program: it has no table " + std::string(needed) + ".");
        }
    }
}

bool HasTransaction(SQLite::Database &database) {
    return sqlite3_get_autocommit(database.getHandle()) == 0;
}

} // namespace

Connection::Connection(std::chrono::milliseconds longestWait)
    : longestWait_(static_cast<int>(longestWait.count())) {}

Connection::~Connection() = default;

void Connection::Open(const std::filesystem::path &file) {
    Close();
    file_ = ExistingFile(file);
    try {
        auto database =
            std::make_unique<SQLite::Database>(TextOfPath(file_), SQLite::OPEN_READWRITE, longestWait_);
        CheckTables(*database, file_);
        // A rollback journal (SQLite's default) that is flushed to the disk at each commit: a power cut costs
        // the change under way at most. A write-ahead log would be quicker, but keeps saved charts in a
        // second file, which a user who copies the database leaves behind, and cannot be read in a
        // write-protected folder.
        database->exec("pragma synchronous = full");
        AddNameCollation(*database);
        database_ = std::move(database);
    } catch (const SQLite::Exception &error) {
        throw StoreError(InWords(error, file_));
    }
}

void Connection::OpenCopyInMemory(const std::filesystem::path &file) {
    Open(file);
    Close();
    try {
        database_ = CopyInMemory(file_, longestWait_);
        AddNameCollation(*database_);
    } catch (const SQLite::Exception &error) {
        throw StoreError(InWords(error, file_));
    }
}

Connection::Teller Connection::OnRowsLeftOut(Teller tell) {
    return std::exchange(tellRowsLeftOut_, std::move(tell));
}

void Connection::TellRowsLeftOut(const std::string &remark) const {
    if (tellRowsLeftOut_) {
        tellRowsLeftOut_(remark);
    }
}

bool Connection::IsOpen() const {
    return database_ != nullptr;
}

void Connection::Close() {
    database_.reset();
}

void Connection::Execute(std::string_view statement) {
    SQLite::Database &database = Database();
    try {
        SQLite::Statement(database, Translated(statement)).exec();
    } catch (const SQLite::Exception &error) {
        throw StoreError(InWords(error, file_, statement));
    }
}

SQLite::Database &Connection::Database() {
    if (!database_) {
        throw StoreError("The connection to the database is closed: nothing can be read or stored. Start the "
                         "program anew when the database file is in its place.");
    }
    return *database_;
}

void Connection::RequireWritable() {
    // The beginning of a transaction succeeds on a write-protected file too; only a change tells.
    const Transaction undone(*this);
    Execute("update Preference set PreID = PreID");
}

Transaction::Transaction(Connection &connection) : connection_(connection) {
    SQLite::Database &database = connection_.Database();
    isInner_ = HasTransaction(database);
    try {
        database.exec(isInner_ ? "savepoint inner_change" : "begin immediate");
    } catch (const SQLite::Exception &error) {
        throw StoreError(InWords(error, connection_.file_));
    }
}

Transaction::~Transaction() {
    // SQLite itself has undone a transaction that a full disk or a closed connection broke off.
    if (isCommitted_ || !connection_.IsOpen() || !HasTransaction(*connection_.database_)) {
        return;
    }
    connection_.database_->tryExec(isInner_ ? "rollback to inner_change; release inner_change" : "rollback");
}

void Transaction::Commit() {
    SQLite::Database &database = connection_.Database();
    try {
        database.exec(isInner_ ? "release inner_change" : "commit");
    } catch (const SQLite::Exception &error) {
        throw StoreError(InWords(error, connection_.file_));
    }
    isCommitted_ = true;
}

} // namespace kelvaro::store
