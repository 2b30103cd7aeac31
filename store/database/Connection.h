#pragma once

#include "runtime/RuntimeError.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace SQLite {
class Database;
} // namespace SQLite

namespace kelvaro::store {

/// A database that cannot be opened or a statement that it refuses, described in words for the user.
class StoreError : public RuntimeError {
public:
    using RuntimeError::RuntimeError;
};

/// A row with a value that cannot be used, described in words for the user; the rows beside it may be sound.
class DamagedRow : public StoreError {
public:
    DamagedRow(const std::string &description, std::string details)
        : StoreError(description), details_(std::move(details)) {}

    /// Which value it is.
    const std::string &Details() const { return details_; }

private:
    std::string details_;
};

/// The one connection to the program's database.
///
/// Statements are those of the program: plain SQL with values joined into the text. Only the first statement
/// of a text runs, whatever stands behind a semicolon. All operations but `Open`, `OpenCopyInMemory`,
/// `IsOpen`, those for rows left out, and `Close` raise StoreError on a closed connection.
class Connection {
public:
    /// How long a lock of another program is waited for, at each use of the database and at the first copy of
    /// its file. Then the use fails.
    static constexpr std::chrono::milliseconds patience{3000};

    using Teller = std::function<void(const std::string &)>;

    explicit Connection(std::chrono::milliseconds longestWait = patience);
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection();

    /// Opens an existing database file, for reading only where the file is write-protected. A database that
    /// was open is closed first. Raises StoreError, and is closed, when the file is missing, locked, damaged
    /// or no database of this program.
    void Open(const std::filesystem::path &file);

    /// Opens a private copy in memory; the file itself is only read. The copy starts with an empty
    /// `tempBhukthi`, which grows with every horoscope and which nothing reads. Raises like `Open`.
    void OpenCopyInMemory(const std::filesystem::path &file);

    /// Whom to tell, in words for the user, of damaged rows that a list was opened without. Nobody at first.
    /// Returns whom it told before.
    Teller OnRowsLeftOut(Teller tell);
    void TellRowsLeftOut(const std::string &remark) const;

    bool IsOpen() const;
    /// Undoes a transaction that is still running. Closing a closed connection does nothing.
    void Close();

    /// Raises StoreError where the file or its folder is write-protected. Changes nothing.
    void RequireWritable();

    /// Runs an insert, a delete or an update. Raises StoreError, with nothing changed, when it fails.
    void Execute(std::string_view statement);

private:
    friend class Recordset;
    friend class Transaction;

    SQLite::Database &Database();

    int longestWait_; ///< milliseconds
    std::filesystem::path file_;
    std::unique_ptr<SQLite::Database> database_;
    Teller tellRowsLeftOut_;
};

/// Makes the statements until `Commit` one change: what is not committed when the object goes is undone.
/// A transaction inside another one joins it: undone, it goes alone; committed, it is kept with the outer
/// one.
class Transaction {
public:
    /// Raises StoreError where the database cannot be changed.
    explicit Transaction(Connection &connection);
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    ~Transaction();

    void Commit();

private:
    Connection &connection_;
    bool isInner_ = false;
    bool isCommitted_ = false;
};

} // namespace kelvaro::store
