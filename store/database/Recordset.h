#pragma once

#include "store/database/Connection.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kelvaro::store {

/// A field's value: null, a whole number, a number or a text.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// The row that is asked for is not there.
class RowGone : public StoreError {
public:
    using StoreError::StoreError;
};

/// The rows that a statement finds, walked one after another; fields are read by name without regard to case.
///
/// The rows are taken when the recordset is opened. An object may be opened again and again; an open one must
/// be closed first, so callers test `IsOpen` before each use. Raises StoreError for a statement that fails,
/// for a field that does not exist, for reading past the end and for any use but `Open`, `IsOpen` and `Close`
/// while closed, RowGone for reading where nothing was found, and DamagedRow for a field that is not of the
/// type asked for.
class Recordset {
public:
    /// The connection must outlive the recordset. A recordset that fails to open stays closed.
    void Open(std::string_view statement, Connection &connection);
    bool IsOpen() const { return isOpen_; }
    /// Forgets assigned fields that were not stored.
    void Close();

    bool IsEndOfFile() const;
    /// Forgets assigned fields that were not stored.
    void MoveNext();

    /// Takes the rows from the present one on, one after another. Those that raise DamagedRow are left out,
    /// and the connection tells of them.
    void ForEach(const std::function<void(const Recordset &)> &take);

    /// Fields by position from 0, as results such as literals and "Max(SNO)" have no names.
    std::size_t FieldCount() const { return names_.size(); }
    bool IsNull(std::size_t field) const;
    std::string Text(std::size_t field) const;
    double Number(std::size_t field) const;
    std::int32_t Integer(std::size_t field) const;

    bool IsNull(std::string_view field) const;
    /// Null is the empty text; a number comes in its default text form.
    std::string Text(std::string_view field) const;
    /// The text as one line for the screen or the page, no longer than a name may be.
    std::string Line(std::string_view field) const;
    /// Raises DamagedRow for null and for a text that is no number.
    double Number(std::string_view field) const;
    /// The number rounded half to even into 32 bits; raises DamagedRow where it does not fit.
    std::int32_t Integer(std::string_view field) const;
    /// The same for 16 bits.
    std::int16_t ShortInteger(std::string_view field) const;

    /// Changes a field of the present row; nothing is stored before `Update`. Only a recordset of "select *
    /// from" one table can be changed.
    void Assign(std::string_view field, Value value);
    /// Stores the fields assigned since the last update into the row, in place; from then on they are read as
    /// stored. Raises StoreError when the database refuses a value or the row has gone.
    void Update();

private:
    struct Row {
        std::int64_t key = 0;
        std::vector<Value> values;
    };
    struct Assignment {
        std::size_t field;
        Value value;
    };

    void TakeRows(const std::string &statement, SQLite::Database &database);
    void StoreRow(Row &row, SQLite::Database &database);
    void RequireOpen() const;
    std::size_t FieldIndex(std::string_view field) const;
    const Value &ValueAt(std::size_t field) const;
    const Row &PresentRow() const;
    [[noreturn]] void FailForTable(const std::string &details) const;
    [[noreturn]] void FailForValue(std::size_t field) const;

    Connection *connection_ = nullptr;
    std::string statement_; ///< as it was handed in, for messages
    std::string table_;     ///< empty where the rows cannot be changed
    std::vector<std::string> names_;
    std::vector<Row> rows_;
    std::size_t position_ = 0;
    std::vector<Assignment> assigned_;
    bool isOpen_ = false;
};

} // namespace kelvaro::store
