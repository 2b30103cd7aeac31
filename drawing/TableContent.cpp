#include "drawing/TableContent.h"

#include "drawing/ShownText.h"
#include "drawing/TextOf.h"

#include <algorithm>

namespace kelvaro {

std::size_t TableContent::CellCount(const TableRow &row) const {
    return std::min(row.cells.size(), ColumnCount());
}

QChar TableContent::AlignmentOf(std::size_t column) const {
    return alignments.at(std::min(static_cast<qsizetype>(column), alignments.size() - 1));
}

QString HangingMark(const QString &text) {
    const qsizetype start = text.lastIndexOf(QStringLiteral(" ("));
    return start < 0 || !text.endsWith(u')') ? QString() : text.mid(start);
}

TableRow RowOf(const std::vector<std::string> &texts, RowKind kind) {
    TableRow row{{}, kind};
    for (const std::string &text : texts) {
        row.cells.push_back({OneLine(TextOf(text))});
    }
    return row;
}

TableContent ContentOf(const TextGrid &grid, const QString &alignments) {
    TableContent content{{}, alignments, {}};
    for (const QString &title : TextOf(grid.header).split(u'|')) {
        content.titles << title.simplified();
    }
    for (const auto &texts : grid.rows) {
        content.rows.push_back(RowOf(texts));
    }
    for (const TextGrid::Cell &cell : grid.boldCells) {
        content.rows.at(cell.row).cells.at(cell.column).isBold = true;
    }
    // From the last one on, so that the rows of those before it keep their numbers.
    for (std::size_t place = grid.sections.size(); place-- > 0;) {
        const TextGrid::Section &section = grid.sections.at(place);
        content.rows.insert(content.rows.begin() + static_cast<std::ptrdiff_t>(section.firstRow),
                            RowOf({section.title}, RowKind::Heading));
    }
    return content;
}

} // namespace kelvaro
