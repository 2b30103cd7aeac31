#include "report/DasaPages.h"

#include "report/TextLayout.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

namespace {

using Row = std::vector<std::string>;

constexpr std::size_t lordWidth = 7;
constexpr std::size_t dateWidth = 11;
constexpr std::string_view arrow = " => ";
constexpr std::string_view betweenColumns = "   ";
constexpr std::size_t columns = 2;
constexpr std::size_t ruleWidth = 71;
static_assert(columns * (lordWidth + arrow.size() + dateWidth + 1 + dateWidth) + betweenColumns.size() ==
              ruleWidth);

constexpr std::string_view dasaWord = " Dasa";

struct PeriodSection {
    std::string_view title;
    std::string_view underline;
    std::string_view blockHeading;  ///< of what the blocks are headed with
    std::string_view periodHeading; ///< of the lords of the periods
    std::string (*blockTitle)(std::string_view sectionTitle);
};

/// The lord's name alone: the grid of bhuktis writes " Dasa" behind each.
std::string_view LordOf(std::string_view text) {
    return text.ends_with(dasaWord) ? text.substr(0, text.size() - dasaWord.size()) : text;
}

constexpr PeriodSection bhuktiSection{"Bhukti", "======", "Dasa", "Bukti", [](std::string_view dasa) {
                                          return std::string(LordOf(dasa)).append(" - Bhukti");
                                      }};
constexpr PeriodSection antraSection{
    "Antra", "=====", "Bhukthi", "Antra",
    [](std::string_view dasaAndBhukti) { return std::string(dasaAndBhukti).append(" - Antra"); }};

std::string PeriodText(std::string_view lord, std::string_view join, std::string_view start,
                       std::string_view end) {
    std::string text = Field(lord, lordWidth);
    text.append(join).append(Field(start, dateWidth)).append(" ").append(Field(end, dateWidth));
    return text;
}

void AddHeadings(const PeriodSection &section, ReportPages &pages) {
    const std::string heading =
        PeriodText(section.periodHeading, std::string(arrow.size(), ' '), "Start", "End");
    pages.AddLine(Centred(section.blockHeading, ruleWidth));
    pages.AddLine(std::string(heading).append(betweenColumns).append(heading));
    pages.AddRule('-', ruleWidth);
}

void AddBlock(std::string_view title, std::span<const Row> periods, ReportPages &pages) {
    pages.AddLine(Centred(title, ruleWidth));
    std::string line;
    for (std::size_t i = 0; i < periods.size(); ++i) {
        const Row &period = periods[i];
        line += PeriodText(LordOf(period.at(0)), arrow, period.at(1), period.at(2));
        if (i % columns == columns - 1 || i + 1 == periods.size()) {
            pages.AddLine(line);
            line.clear();
        } else {
            line += betweenColumns;
        }
    }
}

std::span<const Row> RowsOfSection(const TextGrid &grid, std::size_t section) {
    const std::size_t first = grid.sections.at(section).firstRow;
    const bool isLast = section + 1 == grid.sections.size();
    const std::size_t end = isLast ? grid.rows.size() : grid.sections.at(section + 1).firstRow;
    return std::span(grid.rows).subspan(first, end - first);
}

void AddPeriodPages(const PeriodSection &section, const TextGrid &grid, ReportPages &pages) {
    pages.OpenPage();
    pages.AddLine(section.title);
    pages.AddLine(section.underline);
    pages.AddBlankLines(1);
    AddHeadings(section, pages);
    for (std::size_t i = 0; i < grid.sections.size(); ++i) {
        const std::span<const Row> periods = RowsOfSection(grid, i);
        const std::size_t lines = 1 + (periods.size() + columns - 1) / columns;
        if (lines > pages.LinesLeft()) {
            pages.OpenPage();
            AddHeadings(section, pages);
        }
        AddBlock(section.blockTitle(grid.sections[i].title), periods, pages);
    }
}

} // namespace

void AddBhuktiPages(const TextGrid &mshBukti, ReportPages &pages) {
    AddPeriodPages(bhuktiSection, mshBukti, pages);
}

void AddAntraPages(const TextGrid &mshAntra, ReportPages &pages) {
    AddPeriodPages(antraSection, mshAntra, pages);
}

} // namespace kelvaro
