#include "system/System.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>
#include <xmmintrin.h>

#include <cstdint>
#include <cstdio>
#include <string>

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

std::filesystem::path ZoneRecordsFolder() {
    return ProgramFile().parent_path() / "zoneinfo";
}

bool TellsOfNoRoom(const std::error_code &error) {
    constexpr int diskQuotaExceeded = 1295; // older headers do not name it
    return error == std::errc::no_space_on_device || error == std::errc::file_too_large ||
           (error.category() == std::system_category() &&
            (error.value() == ERROR_DISK_FULL || error.value() == ERROR_HANDLE_DISK_FULL ||
             error.value() == diskQuotaExceeded));
}

// The C library finds out at each call whether the processor has the flags of both units, as every one with
// 64 bits has. A virtual machine takes more time for that question than for all of the arithmetic watched.
int FloatingPointFaults(int wanted) {
    std::uint16_t flagsOfOldUnit = 0;
    asm volatile("fnstsw %0" : "=m"(flagsOfOldUnit));
    return static_cast<int>(flagsOfOldUnit | _mm_getcsr()) & wanted;
}

void PassBytesAsTheyAre() {
    for (std::FILE *const stream : {stdin, stdout}) {
        _setmode(_fileno(stream), _O_BINARY);
    }
}

} // namespace kelvaro
