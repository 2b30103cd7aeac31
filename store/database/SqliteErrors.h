#pragma once

#include <filesystem>
#include <string>

namespace SQLite {
class Exception;
} // namespace SQLite

namespace kelvaro::store {

/// A fault that SQLite reports, in words for the user; the file is the database at work.
std::string InWords(const SQLite::Exception &error, const std::filesystem::path &file);

} // namespace kelvaro::store
