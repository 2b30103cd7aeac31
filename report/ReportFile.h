#pragma once

#include "runtime/RuntimeError.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

/// A report that could not be written to its file, with a sentence that names the file and the cause.
class ReportFileError : public RuntimeError {
public:
    using RuntimeError::RuntimeError;
};

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

/// Writes a file of these bytes, all or nothing: it takes the place of an older file, and keeps its
/// permissions, only when it lies on the disk completely. Raises ReportFileError, with the older file as it
/// was and nothing left beside it, when the disk is full, the folder or the older file may not be written
/// or the name belongs to something that is not a plain file.
void WriteReportFile(const std::filesystem::path &file, std::string_view content);

} // namespace kelvaro
