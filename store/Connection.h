#pragma once

#include "runtime/RuntimeError.h"

#include <filesystem>
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

/// The one connection to the program's database.
///
/// Statements are those of the program: plain SQL with values joined into the text. Only the first statement
/// of a text runs, whatever stands behind a semicolon. All operations but `Open` raise StoreError on a closed
/// connection.
class Connection {
public:
    Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection();

    /// Opens an existing database file. Raises StoreError when it is missing, damaged or no database of this
    /// program.
    void Open(const std::filesystem::path &file);

    /// Opens a private copy in memory; the file itself is only read.
    void OpenCopyInMemory(const std::filesystem::path &file);

    bool IsOpen() const;
    void Close();

    /// Runs an insert, a delete or an update. Raises StoreError, with nothing changed, when it fails.
    void Execute(std::string_view statement);

private:
    friend class Recordset;
    friend class Transaction;

    SQLite::Database &Database();

    std::unique_ptr<SQLite::Database> database_;
};

/// Makes the statements until `Commit` one change: what is not committed when the object goes is undone.
/// A transaction inside another one joins it.
class Transaction {
public:
    explicit Transaction(Connection &connection);
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    ~Transaction();

    void Commit();

private:
    Connection &connection_;
    std::string savepoint_;
    bool isCommitted_ = false;
};

} // namespace kelvaro::store
