#include "system/System.h"

#include <windows.h>

#include <string>
#include <system_error>

namespace kelvaro {

std::optional<std::tm> LocalTime(std::time_t seconds) {
    std::tm local{};
    return localtime_s(&local, &seconds) == 0 ? std::optional(local) : std::nullopt;
}

std::filesystem::path ProgramFile() {
    constexpr std::size_t longestPath = 32768;
    std::wstring name(longestPath, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (length == 0 || length == name.size()) {
        throw std::filesystem::filesystem_error(
            "the program's file", std::error_code(static_cast<int>(GetLastError()), std::system_category()));
    }
    name.resize(length);
    return name;
}

} // namespace kelvaro
