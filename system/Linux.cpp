#include "system/System.h"

#include <cerrno>
#include <cfenv>

namespace kelvaro {

std::optional<std::tm> LocalTime(std::time_t seconds) {
    std::tm local{};
    return localtime_r(&seconds, &local) != nullptr ? std::optional(local) : std::nullopt;
}

std::filesystem::path ProgramFile() {
    return std::filesystem::canonical("/proc/self/exe");
}

std::filesystem::path ZoneRecordsFolder() {
    return "/usr/share/zoneinfo";
}

bool TellsOfNoRoom(const std::error_code &error) {
    return error == std::errc::no_space_on_device || error == std::errc::file_too_large ||
           error.value() == EDQUOT;
}

int FloatingPointFaults(int wanted) {
    return std::fetestexcept(wanted);
}

void PassBytesAsTheyAre() {
    // They do.
}

} // namespace kelvaro
