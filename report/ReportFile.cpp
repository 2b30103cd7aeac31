#include "report/ReportFile.h"

#include "report/TextLayout.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <random>
#include <system_error>

namespace kelvaro {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr mode_t newFilePermissions = 0666;
constexpr mode_t allPermissions = 0777;

bool IsPlainAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80U; });
}

std::string WithMark(std::string content) {
    return IsPlainAscii(content) ? content : content.insert(0, byteOrderMark);
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char byte : text) {
        switch (byte) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        default:
            escaped += byte;
        }
    }
    return escaped;
}

/// Raises what the failed system call has left as its cause.
[[noreturn]] void RaiseSystemError() {
    throw std::system_error(errno, std::generic_category());
}

/// The permissions of an older file; nothing where there is none. An older file that could not be written to
/// in place is refused, as a renaming would pass over its protection.
std::optional<mode_t> PermissionsOfOlder(const fs::path &file) {
    struct stat older {};
    if (stat(file.c_str(), &older) != 0) {
        if (errno == ENOENT) {
            return std::nullopt;
        }
        RaiseSystemError();
    }
    if (!S_ISREG(older.st_mode)) {
        throw std::system_error(std::make_error_code(S_ISDIR(older.st_mode) ? std::errc::is_a_directory
                                                                            : std::errc::not_supported));
    }
    if (faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) {
        RaiseSystemError();
    }
    return older.st_mode & allPermissions;
}

/// A file beside the one to be written, under a passing name. It goes away with this object unless it has
/// taken the other's place.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const fs::path &folder)
        : path_(folder / (".kelvaro-" + std::to_string(std::random_device()()))),
          descriptor_(open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, newFilePermissions)) {
        if (descriptor_ < 0) {
            RaiseSystemError();
        }
    }
    UnfinishedFile(const UnfinishedFile &) = delete;
    UnfinishedFile &operator=(const UnfinishedFile &) = delete;
    ~UnfinishedFile() {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
        if (!hasTakenPlace_) {
            std::error_code ignored;
            fs::remove(path_, ignored);
        }
    }

    void SetPermissions(mode_t permissions) {
        // Some removable media have no permissions to set; the text is worth more than they are.
        static_cast<void>(fchmod(descriptor_, permissions));
    }

    void Write(std::string_view content) {
        while (!content.empty()) {
            const ssize_t written = write(descriptor_, content.data(), content.size());
            if (written >= 0) {
                content.remove_prefix(static_cast<std::size_t>(written));
            } else if (errno != EINTR) {
                RaiseSystemError();
            }
        }
    }

    void TakePlaceOf(const fs::path &file) {
        if (fsync(descriptor_) != 0) {
            RaiseSystemError();
        }
        const int descriptor = descriptor_;
        descriptor_ = -1;
        if (close(descriptor) != 0) {
            RaiseSystemError();
        }
        fs::rename(path_, file);
        hasTakenPlace_ = true;
    }

private:
    fs::path path_;
    int descriptor_;
    bool hasTakenPlace_ = false;
};

} // namespace

std::vector<std::string_view> PagesOf(std::string_view text) {
    std::vector<std::string_view> pages;
    if (text.empty()) {
        return pages;
    }
    for (std::size_t end = 0; end != std::string_view::npos;) {
        end = text.find(pageEnd);
        pages.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return pages;
}

std::string HtmlOfReport(std::string_view text) {
    std::string html("<pre>");
    html.append(lineEnd).append(Escaped(text)).append(lineEnd).append("</pre>").append(lineEnd);
    return html;
}

std::string TextFileContent(std::string_view text) {
    return WithMark(std::string(text).append(lineEnd));
}

std::string HtmlFileContent(std::string_view text) {
    return WithMark(HtmlOfReport(text));
}

void WriteReportFile(const fs::path &file, std::string_view content) {
    try {
        // Behind a link, the file that it leads to is the one to be replaced.
        const fs::path target = fs::weakly_canonical(fs::absolute(file));
        const std::optional<mode_t> permissions = PermissionsOfOlder(target);
        UnfinishedFile unfinished(target.parent_path());
        if (permissions) {
            unfinished.SetPermissions(*permissions);
        }
        unfinished.Write(content);
        unfinished.TakePlaceOf(target);
    } catch (const std::system_error &error) {
        throw ReportFileError("The file " + file.string() + " cannot be written: " + error.code().message() +
                              ".");
    }
}

} // namespace kelvaro
