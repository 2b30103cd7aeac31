#include "drawing/WholeFile.h"

#include "drawing/TextOf.h"
#include "tests/store/StoreFixture.h"
#include "tests/system/System.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <iterator>
#include <string>
#include <string_view>

namespace kelvaro {
namespace {

namespace fs = std::filesystem;

using store::BytesOf;
using store::WriteFile;

/// A disk that takes no more than so many bytes of a file.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &oldLimit_);
        const rlimit limit{bytes, oldLimit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &oldLimit_);
        std::signal(SIGXFSZ, oldHandler_);
    }

private:
    rlimit oldLimit_{};
    void (*oldHandler_)(int);
};

class WholeFileTest : public testing::Test {
protected:
    WholeFileTest() { fs::permissions(inner_, fs::perms::all); }

    std::size_t FilesInFolder() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(inner_), {}));
    }

    /// What the error says that writing raises; empty when it raises none.
    static std::string ErrorOfWriting(const fs::path &file, std::string_view content) {
        const OrdinaryUser user;
        try {
            WriteWholeFile(TextOf(file.string()),
                           QByteArray(content.data(), static_cast<qsizetype>(content.size())));
        } catch (const FileError &error) {
            return error.what();
        }
        return {};
    }

    /// Expects an error about the file, the older file as it was and nothing new in the folder.
    void ExpectRefused(const fs::path &file, std::string_view cause) {
        const std::size_t before = FilesInFolder();
        const std::string error = ErrorOfWriting(file, std::string(100000, 'n'));
        EXPECT_EQ(error, "The file " + file.string() + " cannot be written: " + std::string(cause) + ".");
        EXPECT_EQ(BytesOf(older_), "older");
        EXPECT_EQ(FilesInFolder(), before);
    }

    void MakeOlder() {
        const OrdinaryUser user;
        WriteFile(older_, "older");
    }

    TemporaryFolder folder_;
    fs::path inner_ = (fs::create_directory(folder_ / "inner"), folder_ / "inner");
    fs::path older_ = inner_ / "older.txt";
};

TEST_F(WholeFileTest, WritesANewFileAndReplacesAnOlderOne) {
    MakeOlder();
    fs::permissions(older_, fs::perms(0640));
    fs::create_symlink("older.txt", inner_ / "link.txt");
    const std::string longText(300000, 'x');
    EXPECT_EQ(ErrorOfWriting(inner_ / "new.txt", longText), "");
    EXPECT_EQ(ErrorOfWriting(inner_ / "link.txt", "newer"), "");
    EXPECT_EQ(BytesOf(inner_ / "new.txt"), longText);
    EXPECT_EQ(BytesOf(older_), "newer");
    EXPECT_TRUE(fs::is_symlink(inner_ / "link.txt"));
    EXPECT_EQ(fs::status(older_).permissions(), fs::perms(0640));
    EXPECT_EQ(FilesInFolder(), 3U);
}

TEST_F(WholeFileTest, LeavesTheOlderFileWhenItCannotWrite) {
    MakeOlder();
    ASSERT_EQ(mkfifo((inner_ / "pipe").c_str(), 0666), 0);
    ExpectRefused(inner_, "There is a folder of that name");
    ExpectRefused(inner_ / "pipe", "The name belongs to something that is not a plain file");
    ExpectRefused(inner_ / "missing" / "report.txt", "No such file or directory");
    {
        const FullDisk disk(1000);
        ExpectRefused(older_, "File too large");
        ExpectRefused(inner_ / "new.txt", "File too large");
    }
    fs::permissions(older_, fs::perms(0444));
    ExpectRefused(older_, "Permission denied");
    fs::permissions(older_, fs::perms(0644));
    fs::permissions(inner_, fs::perms(0555));
    ExpectRefused(older_, "Permission denied");
    ExpectRefused(inner_ / "new.txt", "Permission denied");
}

} // namespace
} // namespace kelvaro
