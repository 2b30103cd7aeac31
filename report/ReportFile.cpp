#include "report/ReportFile.h"

#include "report/TextLayout.h"

#include <algorithm>

namespace kelvaro {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

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

} // namespace kelvaro
