#include "report/DasaPages.h"

#include "report/TextLayout.h"
#include "runtime/MomentText.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kelvaro {

namespace {

constexpr std::size_t lordWidth = 7;
constexpr std::size_t dateWidth = 11;
constexpr std::string_view arrow = " => ";
constexpr std::string_view betweenColumns = "   ";
constexpr std::size_t columns = 2;
constexpr std::size_t ruleWidth = 71;
static_assert(columns * (lordWidth + arrow.size() + dateWidth + 1 + dateWidth) + betweenColumns.size() ==
              ruleWidth);

struct PeriodSection {
    std::string_view title;
    std::string_view underline;
    std::string_view blockHeading;  ///< of what the blocks are headed with
    std::string_view periodHeading; ///< of the lords of the periods
};

constexpr PeriodSection bhuktiSection{"Bhukti", "======", "Dasa", "Bukti"};
constexpr PeriodSection antraSection{"Antra", "=====", "Bhukthi", "Antra"};

struct Block {
    std::string title;
    std::span<const DasaPeriod> periods;
};

/// The texts of start and end are as wide as a date.
std::string PeriodText(std::string_view lord, std::string_view join, std::string_view start,
                       std::string_view end) {
    std::string text = Field(lord, lordWidth);
    text.append(join).append(start).append(" ").append(end);
    return text;
}

void AddHeadings(const PeriodSection &section, ReportPages &pages) {
    const std::string heading = PeriodText(section.periodHeading, std::string(arrow.size(), ' '),
                                           Field("Start", dateWidth), Field("End", dateWidth));
    pages.AddLine(Centred(section.blockHeading, ruleWidth));
    pages.AddLine(std::string(heading).append(betweenColumns).append(heading));
    pages.AddRule('-', ruleWidth);
}

void AddBlock(const Block &block, ReportPages &pages) {
    pages.AddLine(Centred(block.title, ruleWidth));
    std::string line;
    std::string start =
        block.periods.empty() ? std::string() : MonthNameDateText(block.periods.front().start);
    for (std::size_t i = 0; i < block.periods.size(); ++i) {
        const DasaPeriod &period = block.periods[i];
        std::string end = MonthNameDateText(period.end);
        line += PeriodText(period.lordName, arrow, start, end);
        // Each period starts where the one before it ended.
        start = std::move(end);
        if (i % columns == columns - 1 || i + 1 == block.periods.size()) {
            pages.AddLine(line);
            line.clear();
        } else {
            line += betweenColumns;
        }
    }
}

void AddPeriodPages(const PeriodSection &section, std::span<const Block> blocks, ReportPages &pages) {
    pages.OpenPage();
    pages.AddLine(section.title);
    pages.AddLine(section.underline);
    pages.AddBlankLines(1);
    AddHeadings(section, pages);
    bool isFirstOfPage = true;
    for (const Block &block : blocks) {
        const std::size_t lines = 1 + (block.periods.size() + columns - 1) / columns;
        if (!isFirstOfPage && 1 + lines > pages.LinesLeft()) {
            pages.OpenPage();
            AddHeadings(section, pages);
            isFirstOfPage = true;
        }
        pages.AddBlankLines(isFirstOfPage ? 0 : 1);
        AddBlock(block, pages);
        isFirstOfPage = false;
    }
}

} // namespace

void AddBhuktiPages(const DasaForm &form, ReportPages &pages) {
    std::vector<Block> blocks;
    for (const DasaPeriod &dasa : form.dasas) {
        const auto bhuktis = InDasa(form.bhuktis, dasa.dasa);
        if (!bhuktis.empty()) {
            blocks.push_back({dasa.lordName + " - Bhukti", bhuktis});
        }
    }
    AddPeriodPages(bhuktiSection, blocks, pages);
}

void AddAntraPages(const DasaForm &form, ReportPages &pages) {
    std::vector<Block> blocks;
    for (const TextGrid::Section &section : form.mshAntra.sections) {
        const DasaPeriod &first = form.antras.at(section.firstRow);
        blocks.push_back({section.title + " - Antra", InBhukti(form.antras, first.dasa, first.bhukti)});
    }
    AddPeriodPages(antraSection, blocks, pages);
}

} // namespace kelvaro
