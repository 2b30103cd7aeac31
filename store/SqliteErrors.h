#pragma once

#include "store/Connection.h"

#include <filesystem>

namespace SQLite {
class Exception;
} // namespace SQLite

namespace kelvaro::store {

/// A fault that SQLite reports, in words for the user; the file is the database at work.
StoreError InWords(const SQLite::Exception &error, const std::filesystem::path &file);

StoreError MissingFile(const std::filesystem::path &file);

} // namespace kelvaro::store
