#include "report/ReportPages.h"

#include "report/TextLayout.h"

#include <algorithm>

namespace kelvaro {

namespace {

constexpr std::string_view header = "www.kelvaro.example - Horoscope";
constexpr std::size_t headerIndent = 38;

bool IsControl(char byte) {
    return static_cast<unsigned char>(byte) < 0x20U || byte == '\x7f';
}

} // namespace

void ReportPages::OpenPage() {
    text_ += pageEnd;
    pageStart_ = text_.size();
    ++page_;
    AddHeader();
    AddBlankLines(1);
}

void ReportPages::AddHeader() {
    std::string line(headerIndent, ' ');
    line += header;
    if (page_ > 1) {
        line.append("  Page ").append(std::to_string(page_));
    }
    AddLine(line);
}

void ReportPages::AddLine(std::string_view line) {
    std::string shown = Field(line, pageWidth);
    std::ranges::replace_if(shown, IsControl, ' ');
    // A line of blanks has no last letter: npos + 1 is 0.
    shown.resize(shown.find_last_not_of(' ') + 1);
    text_.append(shown).append(lineEnd);
}

void ReportPages::AddBlankLines(std::size_t count) {
    for (; count > 0; --count) {
        AddLine({});
    }
}

void ReportPages::AddRule(char stroke, std::size_t width) {
    AddLine(std::string(width, stroke));
}

void ReportPages::AddDrawing(std::span<const std::string> lines) {
    for (const std::string &line : lines) {
        text_.append(line).append(lineEnd);
    }
}

std::size_t ReportPages::LinesLeft() const {
    const auto start = text_.begin() + static_cast<std::ptrdiff_t>(pageStart_);
    const auto lines = static_cast<std::size_t>(std::count(start, text_.end(), lineEnd.back()));
    return linesOfPage - std::min(lines, linesOfPage);
}

} // namespace kelvaro
