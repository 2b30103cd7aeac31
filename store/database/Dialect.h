#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelvaro::store {

/// A statement of the program as SQLite takes it: "delete * from" is "delete from". Bracketed names, mixed
/// case and names without blanks around them are taken as they stand.
std::string Translated(std::string_view statement);

/// The first table that a statement names, without brackets; empty where it names none.
std::string TableOf(std::string_view statement);

/// A text between quotes, as it is joined into a statement. Nothing is escaped: a quote inside would end the
/// text early and make the rest of it part of the statement, so it raises StoreError, in words for the user.
std::string Quoted(std::string_view text);

/// A statement for whole rows of one table, and the same statement with each row's key in front of the row.
struct WholeRows {
    std::string table;
    std::string statementWithKey;
};

/// Finds the table of "select * from" one table, with or without a "where" and an "order by"; nothing for
/// other statements, whose rows cannot be changed in place.
std::optional<WholeRows> AsWholeRows(std::string_view statement);

} // namespace kelvaro::store
