#pragma once

#include <ctime>
#include <filesystem>
#include <optional>

namespace kelvaro {

// What every system does in its own way: one source file a system.

/// The calendar date and clock time of the machine's time zone; nothing where the system does not tell
/// them.
std::optional<std::tm> LocalTime(std::time_t seconds);

/// The file of the running program. Raises std::filesystem::filesystem_error where the system does not tell
/// it.
std::filesystem::path ProgramFile();

} // namespace kelvaro
