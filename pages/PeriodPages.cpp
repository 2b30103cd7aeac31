#include "pages/PeriodPages.h"

#include "drawing/TextOf.h"
#include "runtime/MomentText.h"

#include <algorithm>
#include <span>

namespace kelvaro {

namespace {

constexpr std::size_t columns = 3; // of a page
constexpr double columnGap = 22;   // in points

/// A row for each period; each of them starts where the one before it ended.
void AddBlock(const std::string &title, std::span<const DasaPeriod> periods, TableContent &content) {
    if (periods.empty()) {
        return;
    }
    content.rows.push_back(RowOf({title}, RowKind::Heading));
    std::string start = MonthNameDateText(periods.front().start);
    for (const DasaPeriod &period : periods) {
        std::string end = MonthNameDateText(period.end);
        content.rows.push_back(RowOf({period.lordName, start, end}));
        start = std::move(end);
    }
}

/// The rows that start a block, and the end of all rows.
std::vector<std::size_t> BlockStarts(const TableContent &content) {
    std::vector<std::size_t> starts;
    for (std::size_t row = 0; row < content.rows.size(); ++row) {
        if (content.rows[row].kind == RowKind::Heading) {
            starts.push_back(row);
        }
    }
    starts.push_back(content.rows.size());
    return starts;
}

/// How many blocks, all as high as the highest, a column has room for; at least one.
std::size_t BlocksIn(double room, const TableDrawing &table, const std::vector<std::size_t> &starts) {
    const std::size_t blocks = starts.size() - 1;
    const auto fits = [&](std::size_t count) {
        for (std::size_t block = 0; block + count <= blocks; ++block) {
            if (table.HeightOf(starts[block], starts[block + count]) > room) {
                return false;
            }
        }
        return true;
    };
    std::size_t most = 1;
    while (most < blocks && fits(most + 1)) {
        ++most;
    }
    return most;
}

struct BlockTable {
    std::shared_ptr<const TableDrawing> table;
    std::size_t mostInColumn; ///< blocks
};

/// The table of all blocks, fitted to a column, in the size of which a column holds most.
BlockTable FittedTable(const TableContent &content, const std::vector<std::size_t> &starts, double width,
                       double height) {
    BlockTable best{nullptr, 0};
    for (const double points : {9.5, 9.0}) {
        TableSetting setting;
        setting.points = points;
        setting.leastGap = 6;
        TableDrawing table(content, setting);
        table.FitTo(width);
        const std::size_t mostInColumn = BlocksIn(height, table, starts);
        if (mostInColumn > best.mostInColumn) {
            best = {std::make_shared<const TableDrawing>(std::move(table)), mostInColumn};
        }
    }
    return best;
}

void SetBlocks(const QString &heading, const TableContent &content, PageSetter &setter) {
    if (content.rows.empty()) {
        return;
    }
    const double width =
        (setter.Area().width() - static_cast<double>(columns - 1) * columnGap) / static_cast<double>(columns);
    const std::vector<std::size_t> starts = BlockStarts(content);
    const std::size_t blocks = starts.size() - 1;
    setter.OpenPage();
    setter.AddHeading(heading);
    const auto [table, mostInColumn] = FittedTable(content, starts, width, setter.RoomLeft());
    for (std::size_t block = 0; block < blocks;) {
        if (block > 0) {
            setter.OpenPage();
            setter.AddHeading(heading);
        }
        const std::size_t ofPage = std::min(blocks - block, columns * mostInColumn);
        const std::size_t inColumn = (ofPage + columns - 1) / columns;
        for (std::size_t column = 0; column < columns && block < blocks; ++column) {
            const std::size_t end = std::min(block + inColumn, blocks);
            const double left = setter.Area().left() + static_cast<double>(column) * (width + columnGap);
            setter.Add(TableItem{table, {left, setter.Top()}, starts[block], starts[end]});
            block = end;
        }
    }
}

TableContent EmptyBlocks(const char *lords) {
    return {{QString::fromLatin1(lords), QStringLiteral("Start"), QStringLiteral("End")},
            QStringLiteral("l"),
            {}};
}

} // namespace

void SetBhuktiPages(const DasaForm &form, PageSetter &setter) {
    TableContent content = EmptyBlocks("Bukti");
    for (const DasaPeriod &dasa : form.dasas) {
        AddBlock(dasa.lordName + " - Bhukti", InDasa(form.bhuktis, dasa.dasa), content);
    }
    SetBlocks(QStringLiteral("Bhukti"), content, setter);
}

void SetAntraPages(const DasaForm &form, PageSetter &setter) {
    TableContent content = EmptyBlocks("Antra");
    for (const TextGrid::Section &section : form.mshAntra.sections) {
        const DasaPeriod &first = form.antras.at(section.firstRow);
        AddBlock(section.title, InBhukti(form.antras, first.dasa, first.bhukti), content);
    }
    SetBlocks(QStringLiteral("Antra"), content, setter);
}

} // namespace kelvaro
