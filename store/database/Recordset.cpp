#include "store/database/Recordset.h"

#include "runtime/Numbers.h"
#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/FaultTexts.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include <algorithm>

namespace kelvaro::store {

namespace {

Value ValueOf(const SQLite::Column &column) {
    if (column.isNull()) {
        return {};
    }
    if (column.isInteger()) {
        return column.getInt64();
    }
    if (column.isFloat()) {
        return column.getDouble();
    }
    return column.getString();
}

std::vector<Value> ValuesFrom(SQLite::Statement &query, int firstColumn) {
    std::vector<Value> values;
    values.reserve(static_cast<std::size_t>(query.getColumnCount() - firstColumn));
    for (int column = firstColumn; column < query.getColumnCount(); ++column) {
        values.push_back(ValueOf(query.getColumn(column)));
    }
    return values;
}

/// Binds a value to a parameter of a statement; the positions start at 1.
struct Binder {
    SQLite::Statement &statement;
    int position;

    void operator()(std::monostate) const { statement.bind(position); }
    void operator()(const auto &value) const { statement.bind(position, value); }
};

std::string TextOf(const Value &value) {
    if (const auto *whole = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*whole);
    }
    if (const auto *number = std::get_if<double>(&value)) {
        return NumberText(*number);
    }
    const auto *text = std::get_if<std::string>(&value);
    return text != nullptr ? *text : std::string();
}

double NumberOf(const Value &value) {
    if (const auto *whole = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*whole);
    }
    if (const auto *number = std::get_if<double>(&value)) {
        return *number;
    }
    const auto *text = std::get_if<std::string>(&value);
    if (text == nullptr) {
        throw ConversionError("nothing");
    }
    return NumberFromText(*text);
}

} // namespace

void Recordset::Open(std::string_view statement, Connection &connection) {
    if (isOpen_) {
        throw StoreError("The recordset is open already.");
    }
    SQLite::Database &database = connection.Database();
    Recordset opened;
    opened.connection_ = &connection;
    opened.statement_ = statement;
    const auto wholeRows = AsWholeRows(statement);
    if (wholeRows) {
        opened.table_ = wholeRows->table;
    }
    try {
        opened.TakeRows(wholeRows ? wholeRows->statementWithKey : Translated(statement), database);
    } catch (const SQLite::Exception &error) {
        throw StoreError(InWords(error, connection.file_, statement));
    }
    opened.isOpen_ = true;
    *this = std::move(opened);
}

void Recordset::TakeRows(const std::string &statement, SQLite::Database &database) {
    SQLite::Statement query(database, statement);
    if (query.getColumnCount() == 0) {
        throw StoreError("The statement finds no rows: " + statement_);
    }
    const int firstColumn = table_.empty() ? 0 : 1;
    for (int column = firstColumn; column < query.getColumnCount(); ++column) {
        names_.emplace_back(query.getColumnName(column));
    }
    while (query.executeStep()) {
        Row &row = rows_.emplace_back();
        if (firstColumn != 0) {
            row.key = query.getColumn(0).getInt64();
        }
        row.values = ValuesFrom(query, firstColumn);
    }
}

void Recordset::Close() {
    *this = Recordset();
}

bool Recordset::IsEndOfFile() const {
    RequireOpen();
    return position_ >= rows_.size();
}

void Recordset::MoveNext() {
    PresentRow();
    assigned_.clear();
    ++position_;
}

void Recordset::ForEach(const std::function<void(const Recordset &)> &take) {
    std::size_t leftOut = 0;
    std::string details;
    for (; !IsEndOfFile(); MoveNext()) {
        try {
            take(*this);
        } catch (const DamagedRow &damage) {
            details = ++leftOut == 1 ? damage.Details() : details;
        }
    }
    if (leftOut > 0) {
        connection_->TellRowsLeftOut(RowsLeftOut(statement_, leftOut, details));
    }
}

bool Recordset::IsNull(std::size_t field) const {
    return std::holds_alternative<std::monostate>(ValueAt(field));
}

std::string Recordset::Text(std::size_t field) const {
    return TextOf(ValueAt(field));
}

double Recordset::Number(std::size_t field) const {
    const Value &value = ValueAt(field);
    try {
        return NumberOf(value);
    } catch (const ConversionError &) {
        FailForValue(field);
    }
}

std::int32_t Recordset::Integer(std::size_t field) const {
    const double number = Number(field);
    try {
        return ToInt32(number);
    } catch (const OverflowError &) {
        FailForValue(field);
    }
}

bool Recordset::IsNull(std::string_view field) const {
    return IsNull(FieldIndex(field));
}

std::string Recordset::Text(std::string_view field) const {
    return Text(FieldIndex(field));
}

std::string Recordset::Line(std::string_view field) const {
    return OneLine(Text(field));
}

double Recordset::Number(std::string_view field) const {
    return Number(FieldIndex(field));
}

std::int32_t Recordset::Integer(std::string_view field) const {
    return Integer(FieldIndex(field));
}

std::int16_t Recordset::ShortInteger(std::string_view field) const {
    const double number = Number(field);
    try {
        return ToInt16(number);
    } catch (const OverflowError &) {
        FailForValue(FieldIndex(field));
    }
}

void Recordset::Assign(std::string_view field, Value value) {
    PresentRow();
    if (table_.empty()) {
        throw StoreError("The rows of this statement cannot be changed: " + statement_);
    }
    const std::size_t index = FieldIndex(field);
    std::erase_if(assigned_, [index](const Assignment &earlier) { return earlier.field == index; });
    assigned_.push_back({index, std::move(value)});
}

void Recordset::Update() {
    PresentRow();
    SQLite::Database &database = connection_->Database();
    if (assigned_.empty()) {
        return;
    }
    try {
        StoreRow(rows_[position_], database);
    } catch (const SQLite::Exception &error) {
        throw StoreError(InWords(error, connection_->file_, statement_));
    }
    assigned_.clear();
}

void Recordset::StoreRow(Row &row, SQLite::Database &database) {
    std::string changes;
    for (const Assignment &assignment : assigned_) {
        changes += (changes.empty() ? "[" : ", [") + names_[assignment.field] + "] = ?";
    }
    SQLite::Statement update(database,
                             "update " + table_ + " set " + changes + " where rowid = ? returning *");
    int position = 0;
    for (const Assignment &assignment : assigned_) {
        std::visit(Binder{update, ++position}, assignment.value);
    }
    update.bind(++position, row.key);
    if (!update.executeStep()) {
        throw StoreError(RowHasGone(statement_, connection_->file_));
    }
    std::vector<Value> stored = ValuesFrom(update, 0);
    // The change is committed by the step that finds no further row, which may fail as well.
    update.executeStep();
    row.values = std::move(stored);
}

void Recordset::RequireOpen() const {
    if (!isOpen_) {
        throw StoreError("The recordset is closed.");
    }
}

std::size_t Recordset::FieldIndex(std::string_view field) const {
    RequireOpen();
    const auto found = std::ranges::find_if(
        names_, [field](const std::string &name) { return SameIgnoringCase(name, field); });
    if (found == names_.end()) {
        FailForTable("there is no column " + std::string(field));
    }
    return static_cast<std::size_t>(found - names_.begin());
}

const Value &Recordset::ValueAt(std::size_t field) const {
    const Row &row = PresentRow();
    if (field >= row.values.size()) {
        FailForTable("there is no column number " + std::to_string(field));
    }
    return row.values[field];
}

const Recordset::Row &Recordset::PresentRow() const {
    RequireOpen();
    if (rows_.empty()) {
        throw RowGone(RowHasGone(statement_, connection_->file_));
    }
    if (position_ >= rows_.size()) {
        throw StoreError("All rows have been read of: " + statement_);
    }
    return rows_[position_];
}

void Recordset::FailForTable(const std::string &details) const {
    throw StoreError(TableIsDamaged(statement_, connection_->file_, details));
}

void Recordset::FailForValue(std::size_t field) const {
    constexpr std::size_t longestQuote = 40;
    const Row &row = PresentRow();
    std::string details =
        names_[field] + (IsNull(field) ? " is empty" : " is \"" + OneLine(Text(field), longestQuote) + "\"");
    if (!table_.empty()) {
        details += " in row " + std::to_string(row.key);
    }
    throw DamagedRow(RowIsDamaged(statement_, connection_->file_, details), details);
}

} // namespace kelvaro::store
