#pragma once

#include <string_view>

namespace SQLite {
class Database;
} // namespace SQLite

namespace kelvaro::store {

/// Stands behind a name that is compared, or a column that is sorted, without regard to case in any script.
///
/// The columns themselves know the case of A to Z only, so that other programs read the file, indices
/// included; what is asked with this word finds its rows without an index.
inline constexpr std::string_view inAnyCase = " collate NameInAnyCase";

/// Makes the word known to a database that was opened. Raises SQLite's own exceptions.
void AddNameCollation(SQLite::Database &database);

} // namespace kelvaro::store
