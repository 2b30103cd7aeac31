#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

/// The pages of a report, split at the form feeds, which belong to none; an empty text has no pages. They
/// are views into the text.
std::vector<std::string_view> PagesOf(std::string_view text);

/// The report as a page of HTML, as it stands between "<pre>" and "</pre>", with "&" and "<" of the text
/// escaped. Each of these three ends its line with CR LF.
std::string HtmlOfReport(std::string_view text);

/// All bytes of the text file or the HTML file of a report, in UTF-8: the text and CR LF, or `HtmlOfReport`.
/// A byte order mark stands first where the text is not plain ASCII.
std::string TextFileContent(std::string_view text);
std::string HtmlFileContent(std::string_view text);

} // namespace kelvaro
