#pragma once

#include <filesystem>
#include <memory>

namespace SQLite {
class Database;
} // namespace SQLite

namespace kelvaro::store {

/// A database in memory with the tables of a file, all rows but those of `tempBhukthi`. Copying row by row
/// instead of the whole file makes the cost independent of how many horoscopes the file has seen. Raises
/// SQLite's own exceptions.
std::unique_ptr<SQLite::Database> CopyInMemory(const std::filesystem::path &file, int busyMilliseconds);

} // namespace kelvaro::store
