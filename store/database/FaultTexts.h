#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace SQLite {
class Exception;
} // namespace SQLite

namespace kelvaro::store {

// What a fault of the database means for the user: what is damaged, what still works and what to do; at the
// end, shortened, what only helps someone who mends the file. The file is the database at work; a statement
// tells which of its tables is meant.

/// A fault that SQLite reports. Whether a file that cannot be opened lies in a folder that cannot be written
/// is tried.
std::string InWords(const SQLite::Exception &error, const std::filesystem::path &file,
                    std::string_view statement = {});

/// A table that cannot serve a statement.
std::string TableIsDamaged(std::string_view statement, const std::filesystem::path &file,
                           std::string_view details);

/// A row with a value that cannot be used.
std::string RowIsDamaged(std::string_view statement, const std::filesystem::path &file,
                         std::string_view details);

/// A row that a list, a form or another table still names and that is not there.
std::string RowHasGone(std::string_view statement, const std::filesystem::path &file);

/// Rows that a list had to leave out, with the details of the first of them.
std::string RowsLeftOut(std::string_view statement, std::size_t count, std::string_view details);

} // namespace kelvaro::store
