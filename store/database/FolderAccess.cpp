#include "store/database/FolderAccess.h"

#include "system/System.h"

#include <cerrno>
#include <fstream>
#include <random>

namespace kelvaro::store {

namespace fs = std::filesystem;

std::string PassingName() {
    return ".DBMirvaneBasic-" + std::to_string(std::random_device()());
}

std::error_code WriteTo(const fs::path &file, std::string_view text) {
    errno = 0;
    std::ofstream stream(file);
    stream << text;
    stream.flush();
    if (stream) {
        return {};
    }
    return {errno == 0 ? EIO : errno, std::generic_category()};
}

bool CanWriteInto(const fs::path &folder) {
    const fs::path probe = folder / PassingName();
    const std::error_code failure = WriteTo(probe, "");
    std::error_code ignored;
    fs::remove(probe, ignored);
    return !failure || TellsOfNoRoom(failure);
}

} // namespace kelvaro::store
