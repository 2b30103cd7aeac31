#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace kelvaro::store {

/// A file name that no other start of the program uses.
std::string PassingName();

/// Writes a new file; what the system says where that fails.
std::error_code WriteTo(const std::filesystem::path &file, std::string_view text);

/// Whether files can be made in a folder. Only trying tells: permissions, access lists and write-protected
/// media all have a say. A folder on a full disk is one that can be written, or the charts in it would be
/// missed.
bool CanWriteInto(const std::filesystem::path &folder);

} // namespace kelvaro::store
