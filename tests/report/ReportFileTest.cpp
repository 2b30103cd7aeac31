#include "report/ReportFile.h"

#include "tests/store/StoreFixture.h"

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

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

class ReportFileTest : public testing::Test {
protected:
    ReportFileTest() { fs::permissions(inner_, fs::perms::all); }

    std::size_t FilesInFolder() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(inner_), {}));
    }

    /// What the error says that writing raises; empty when it raises none.
    static std::string ErrorOfWriting(const fs::path &file, std::string_view content) {
        const store::OrdinaryUser user;
        try {
            WriteReportFile(file, content);
        } catch (const ReportFileError &error) {
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
        const store::OrdinaryUser user;
        WriteFile(older_, "older");
    }

    store::TemporaryFolder folder_;
    fs::path inner_ = (fs::create_directory(folder_ / "inner"), folder_ / "inner");
    fs::path older_ = inner_ / "older.txt";
};

TEST_F(ReportFileTest, WritesANewFileAndReplacesAnOlderOne) {
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

TEST_F(ReportFileTest, LeavesTheOlderFileWhenItCannotWrite) {
    MakeOlder();
    ASSERT_EQ(mkfifo((inner_ / "pipe").c_str(), 0666), 0);
    ExpectRefused(inner_, "Is a directory");
    ExpectRefused(inner_ / "pipe", "Operation not supported");
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

TEST(ReportContentTest, MarksAndEscapesOnlyWhatNeedsIt) {
    struct Case {
        const char *text;
        const char *textFile;
        const char *htmlFile;
    };
    for (const Case &entry : {
             Case{"", "\r\n", "<pre>\r\n\r\n</pre>\r\n"},
             Case{"a <b> & \"c\"\r\n\fd", "a <b> & \"c\"\r\n\fd\r\n",
                  "<pre>\r\na &lt;b> &amp; \"c\"\r\n\fd\r\n</pre>\r\n"},
             Case{"Zoë", "\xEF\xBB\xBFZoë\r\n", "\xEF\xBB\xBF<pre>\r\nZoë\r\n</pre>\r\n"},
             Case{"&lt;", "&lt;\r\n", "<pre>\r\n&amp;lt;\r\n</pre>\r\n"},
         }) {
        EXPECT_EQ(TextFileContent(entry.text), entry.textFile);
        EXPECT_EQ(HtmlFileContent(entry.text), entry.htmlFile);
    }
}

TEST(ReportContentTest, PartsPagesAtFormFeeds) {
    using Pages = std::vector<std::string_view>;
    EXPECT_EQ(PagesOf(""), Pages());
    EXPECT_EQ(PagesOf("a\r\n"), Pages({"a\r\n"}));
    EXPECT_EQ(PagesOf("a\fb\r\n\f\fc"), Pages({"a", "b\r\n", "", "c"}));
    EXPECT_EQ(PagesOf("a\f"), Pages({"a", ""}));
}

} // namespace
} // namespace kelvaro
