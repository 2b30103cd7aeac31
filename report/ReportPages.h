#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace kelvaro {

/// Lines of a page that fits a sheet of A4 in nine point type. The bhuktis of nine dasas fill one, with a
/// blank line between the dasas: those of a whole life must stand on one page.
inline constexpr std::size_t linesOfPage = 70;

/// The text of a report as it grows, page by page and line by line.
class ReportPages {
public:
    /// Opens the first page, which has its header where the caller adds it.
    ReportPages() = default;

    /// Ends the page and opens the next one with its header and a blank line.
    void OpenPage();
    /// Adds the page header, with the page's number from the second page on.
    void AddHeader();

    /// Adds a line, blanks at its end left out. What would break it, a line end inside a name for example,
    /// becomes a blank, and what lies beyond the page's width is cut off.
    void AddLine(std::string_view line);
    void AddBlankLines(std::size_t count);
    void AddRule(char stroke, std::size_t width);
    /// Adds lines as they are, blanks at their ends included.
    void AddDrawing(std::span<const std::string> lines);

    /// Lines that the page still has room for.
    std::size_t LinesLeft() const;

    /// The finished report.
    std::string Text() && { return std::move(text_); }

private:
    std::string text_;
    std::size_t pageStart_ = 0;
    int page_ = 1;
};

} // namespace kelvaro
