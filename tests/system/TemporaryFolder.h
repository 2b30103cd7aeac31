#pragma once

#include "tests/system/System.h"

#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace kelvaro {

/// A folder of one test, gone with it. Its name has letters of four code pages and a blank: users have such
/// names.
class TemporaryFolder {
public:
    explicit TemporaryFolder(const std::filesystem::path &parent = std::filesystem::temp_directory_path()) {
        std::random_device random;
        do {
            path_ = parent / (u8"kelvaro Łódź தமிழ் 漢-" + TextOf(random()));
        } while (!std::filesystem::create_directory(path_));
        OpenFolder(path_);
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;
    ~TemporaryFolder() {
        // On some systems a write-protected file cannot be removed.
        std::error_code ignored;
        for (std::filesystem::recursive_directory_iterator entry(path_, ignored), end; entry != end;
             entry.increment(ignored)) {
            std::filesystem::permissions(*entry, std::filesystem::perms::owner_write,
                                         std::filesystem::perm_options::add, ignored);
        }
        std::filesystem::remove_all(path_, ignored);
    }

    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
    const std::filesystem::path &Path() const { return path_; }

private:
    static std::u8string TextOf(unsigned number) {
        const std::string text = std::to_string(number);
        return {text.begin(), text.end()};
    }

    std::filesystem::path path_;
};

} // namespace kelvaro
