#pragma once

#include <ctime>
#include <filesystem>
#include <optional>
#include <system_error>

namespace kelvaro {

// What every system does in its own way: one source file a system.

/// The calendar date and clock time of the machine's time zone; nothing where the system does not tell
/// them.
std::optional<std::tm> LocalTime(std::time_t seconds);

/// The file of the running program. Raises std::filesystem::filesystem_error where the system does not tell
/// it.
std::filesystem::path ProgramFile();

/// Where the compiled files of the tz database lie: among the system's own, or beside the program on a system
/// that has none. It need not be there. Raises what ProgramFile raises.
std::filesystem::path ZoneRecordsFolder();

/// Whether an error says that a disk is full, or the part of it that the user may fill, or that a file has
/// reached the size that its disk can keep.
bool TellsOfNoRoom(const std::error_code &error);

/// Which of the wanted exceptions of <cfenv> the processor has noted since they were cleared.
int FloatingPointFaults(int wanted);

/// Lets the standard input and output of the program pass bytes as they are, line ends and all. To be called
/// before their first use.
void PassBytesAsTheyAre();

} // namespace kelvaro
