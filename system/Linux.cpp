#include "system/System.h"

#include <cerrno>
#include <cfenv>

namespace kelvaro {

namespace {

constexpr int floatingPointFaults = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW;

} // namespace

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

int FloatingPointFaults() {
    return std::fetestexcept(floatingPointFaults);
}

void ClearFloatingPointFaults() {
    std::feclearexcept(floatingPointFaults);
}

void PassBytesAsTheyAre() {
    // They do.
}

} // namespace kelvaro
