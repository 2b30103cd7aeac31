#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kelvaro {

// Names of files and folders are texts in UTF-8 in the program, in its messages and towards its database,
// whatever a system takes them in.

/// The name of a file or folder as its system writes it.
std::string TextOfPath(std::filesystem::path path);

std::filesystem::path PathOfText(std::string_view text);

} // namespace kelvaro
