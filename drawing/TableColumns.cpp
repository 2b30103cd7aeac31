#include "drawing/TableColumns.h"

#include "drawing/HouseFonts.h"
#include "drawing/PointRuler.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace kelvaro {

namespace {

constexpr double measuringPoints = 10;
constexpr double titleSize = 0.9; // of the size of cells

double LongestWord(const QString &text, const QFont &font) {
    double longest = 0;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        longest = std::max(longest, WidthOf(word, font));
    }
    return longest;
}

/// The widths, none below its least, the widest of them made so narrow that the sum is the room, if that can
/// be.
std::vector<double> Narrowed(const std::vector<double> &widths, const std::vector<double> &least,
                             double room) {
    constexpr int halvings = 40;
    const auto cappedAt = [&](double cap) {
        std::vector<double> capped(widths.size());
        std::ranges::transform(widths, least, capped.begin(), [cap](double width, double atLeast) {
            return std::min(width, std::max(atLeast, cap));
        });
        return capped;
    };
    double low = 0;
    double high = room;
    for (int step = 0; step < halvings; ++step) {
        const double cap = std::midpoint(low, high);
        (SumOf(cappedAt(cap)) <= room ? low : high) = cap;
    }
    return cappedAt(low);
}

} // namespace

QFont CellFont(double points, bool isBold) {
    return SerifFont(points, isBold ? Weight::Bold : Weight::Regular);
}

QFont TitleFont(double points) {
    return SansFont(titleSize * points, Weight::Bold);
}

double SumOf(const std::vector<double> &widths) {
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

TableColumns::TableColumns(const TableContent &content) : measures_(content.ColumnCount()) {
    const QFont titleFont = TitleFont(measuringPoints);
    for (std::size_t column = 0; column < measures_.size(); ++column) {
        const QString &title = content.titles.at(static_cast<qsizetype>(column));
        measures_[column].title = WidthOf(title, titleFont);
        measures_[column].wordOfTitle = LongestWord(title, titleFont);
    }
    std::vector<double> widestFigures(measures_.size());
    for (const TableRow &row : content.rows) {
        if (row.kind == RowKind::Heading) {
            continue;
        }
        for (std::size_t column = 0; column < content.CellCount(row); ++column) {
            const QFont font = CellFont(measuringPoints, row.IsBold(column));
            const QString &text = row.cells[column].text;
            Measure &measure = measures_[column];
            const QString mark = content.AlignmentOf(column) == u'h' ? HangingMark(text) : QString();
            const QString figure = text.chopped(mark.size());
            widestFigures[column] = std::max(widestFigures[column], WidthOf(figure, font));
            measure.mark = std::max(measure.mark, WidthOf(mark, font));
            measure.cell = widestFigures[column] + measure.mark;
            measure.wordOfCell = std::max(measure.wordOfCell, LongestWord(text, font));
        }
    }
}

template <typename Width> std::vector<double> TableColumns::Widths(double points, const Width &width) const {
    std::vector<double> widths;
    std::ranges::transform(measures_, std::back_inserter(widths),
                           [&](const Measure &measure) { return width(measure) * points / measuringPoints; });
    return widths;
}

std::vector<double> TableColumns::NaturalWidths(double points) const {
    return Widths(points, [](const Measure &each) { return std::max(each.cell, each.title); });
}

std::vector<double> TableColumns::WordWidths(double points) const {
    return Widths(points, [](const Measure &each) { return std::max(each.wordOfCell, each.wordOfTitle); });
}

double TableColumns::MarkWidth(std::size_t column, double points) const {
    return measures_.at(column).mark * points / measuringPoints;
}

bool TableColumns::HasRoomForWords(double points, double room) const {
    return SumOf(WordWidths(points)) <= room;
}

std::vector<double> TableColumns::WidthsIn(double room, double points) const {
    std::vector<double> natural = NaturalWidths(points);
    if (SumOf(natural) <= room) {
        return natural;
    }
    const std::vector<double> cells =
        Widths(points, [](const Measure &each) { return std::max(each.cell, each.wordOfTitle); });
    if (SumOf(cells) <= room) {
        return Narrowed(natural, cells, room);
    }
    if (HasRoomForWords(points, room)) {
        return Narrowed(cells, WordWidths(points), room);
    }
    return Narrowed(cells, std::vector<double>(cells.size()), room);
}

} // namespace kelvaro
