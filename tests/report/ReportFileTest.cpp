#include "report/ReportFile.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace kelvaro {
namespace {

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
