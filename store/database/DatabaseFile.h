#pragma once

#include <filesystem>
#include <string_view>

namespace kelvaro::store {

inline constexpr std::string_view databaseFileName = "DBMirvaneBasic.mdb";

/// The database file to work with: the one beside the program, in `programFolder`, where that folder can be
/// written.
///
/// Elsewhere, and wherever a file "DBMirvaneBasic.original" says that several users share the program, it is
/// the one in `userFolder`, the user's data folder, which need not exist yet. The first start copies the
/// program's file there, all or nothing, and leaves a mark. A file that goes missing later is not copied
/// again, which would hide the loss of the saved charts: its path is returned, and opening it reports it
/// missing. Raises StoreError when the copy cannot be made.
std::filesystem::path FindDatabaseFile(const std::filesystem::path &programFolder,
                                       const std::filesystem::path &userFolder);

} // namespace kelvaro::store
