#include "system/System.h"

namespace kelvaro {

std::optional<std::tm> LocalTime(std::time_t seconds) {
    std::tm local{};
    return localtime_r(&seconds, &local) != nullptr ? std::optional(local) : std::nullopt;
}

std::filesystem::path ProgramFile() {
    return std::filesystem::canonical("/proc/self/exe");
}

} // namespace kelvaro
