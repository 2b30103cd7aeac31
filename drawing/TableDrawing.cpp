#include "drawing/TableDrawing.h"

#include "drawing/ChartColours.h"
#include "drawing/PointRuler.h"
#include "drawing/PutRule.h"
#include "drawing/PutText.h"

#include <QPen>

#include <algorithm>
#include <utility>

namespace kelvaro {

namespace {

// In points.
constexpr double thickRule = 0.9;
constexpr double thinRule = 0.45;
constexpr double stepOfPoints = 0.5;

// In sizes of the font.
constexpr double lineHeight = 1.2;
constexpr double titlePadding = 0.32;
constexpr double belowTitles = 0.25;
constexpr double groupGap = 0.42;
constexpr double sectionGap = 0.8;
constexpr double totalGap = 0.3;
constexpr double endPadding = 0.3;

/// Lines of a row.
void PaintLines(QPainter &painter, QPointF topLeft, double dotsPerPoint, const auto &lines) {
    for (const auto &line : lines) {
        PutText(painter, topLeft + QPointF(line.left, line.baseline) * dotsPerPoint, line.text, line.font);
    }
}

} // namespace

TableDrawing::TableDrawing(TableContent content, const TableSetting &setting)
    : content_(std::move(content)), setting_(setting), columns_(content_), points_(setting.points) {
    SetColumns(columns_.NaturalWidths(points_), setting_.usualGap);
}

void TableDrawing::FitTo(double width) {
    const double gaps = static_cast<double>(std::max<std::size_t>(content_.ColumnCount(), 2)) - 1;
    const double room = width - gaps * setting_.leastGap;
    points_ = setting_.points;
    while (points_ > setting_.leastPoints && !columns_.HasRoomForWords(points_, room)) {
        points_ = std::max(points_ - stepOfPoints, setting_.leastPoints);
    }
    std::vector<double> widths = columns_.WidthsIn(room, points_);
    const double spare = std::max(room - SumOf(widths), 0.0);
    SetColumns(std::move(widths), std::min(setting_.leastGap + spare / gaps, setting_.widestGap));
}

void TableDrawing::SetColumns(std::vector<double> widths, double gap) {
    widths_ = std::move(widths);
    lefts_.clear();
    width_ = 0;
    for (const double width : widths_) {
        lefts_.push_back(lefts_.empty() ? 0 : width_ + gap);
        width_ = lefts_.back() + width;
    }
    titles_ = SetTitles();
    SetRows();
}

/// Groups of three, unless five suit better.
std::size_t TableDrawing::RowsBeside() const {
    const auto rows = std::ranges::count(content_.rows, RowKind::Plain, &TableRow::kind);
    const std::size_t suiting = rows % 5 == 0 && rows % 3 != 0 ? 5 : 3;
    return setting_.rowsBeside > 0 ? setting_.rowsBeside : suiting;
}

void TableDrawing::SetRows() {
    rows_.clear();
    const std::size_t rowsBeside = RowsBeside();
    std::size_t inGroup = 0;
    for (const TableRow &row : content_.rows) {
        if (row.kind == RowKind::Heading) {
            rows_.push_back(SetHeading(row));
            inGroup = 0;
            continue;
        }
        rows_.push_back(SetCells(row));
        if (row.kind == RowKind::Total) {
            rows_.back().gapAbove = totalGap * points_;
            rows_.back().hasRuleAbove = true;
        } else if (inGroup == rowsBeside) {
            rows_.back().gapAbove = groupGap * points_;
            inGroup = 0;
        }
        ++inGroup;
    }
}

/// The text goes on below itself where the column is narrow.
void TableDrawing::AddLines(SetRow &row, std::size_t column, const QString &text, const QFont &font) const {
    // A text measured whole and one broken into lines may differ in the last place.
    constexpr double tolerance = 0.1;
    const double pitch = lineHeight * points_;
    const double padding = setting_.rowPadding * points_;
    const QChar alignment = content_.AlignmentOf(column);
    const double overhang =
        alignment == u'h' ? columns_.MarkWidth(column, points_) - WidthOf(HangingMark(text), font) : 0;
    double baseline = padding + (pitch + CapitalHeight(font)) / 2;
    double bottom = padding;
    for (TextLine &line : LinesInPoints(text, font, widths_[column] + tolerance)) {
        const double spare = widths_[column] - line.width;
        const double indent = alignment == u'r'   ? spare
                              : alignment == u'c' ? spare / 2
                              : alignment == u'h' ? std::max(spare - overhang, 0.0)
                                                  : 0;
        row.lines.push_back({std::move(line.text), font, lefts_[column] + indent, baseline});
        baseline += pitch;
        bottom += pitch;
    }
    row.height = std::max(row.height, bottom + padding);
}

TableDrawing::SetRow TableDrawing::SetCells(const TableRow &row) const {
    SetRow set;
    set.height = (lineHeight + 2 * setting_.rowPadding) * points_;
    for (std::size_t column = 0; column < content_.CellCount(row); ++column) {
        AddLines(set, column, row.cells[column].text, CellFont(points_, row.IsBold(column)));
    }
    return set;
}

/// Titles of one line stand beside the last line of the others.
TableDrawing::SetRow TableDrawing::SetTitles() const {
    SetRow set;
    std::vector<SetRow> titles;
    for (std::size_t column = 0; column < content_.ColumnCount(); ++column) {
        SetRow &title = titles.emplace_back();
        AddLines(title, column, content_.titles.at(static_cast<qsizetype>(column)), TitleFont(points_));
        set.height = std::max(set.height, title.height);
    }
    for (SetRow &title : titles) {
        for (Line &line : title.lines) {
            line.baseline += set.height - title.height;
            set.lines.push_back(std::move(line));
        }
    }
    return set;
}

TableDrawing::SetRow TableDrawing::SetHeading(const TableRow &row) const {
    SetRow set;
    const QFont font = CellFont(points_, true);
    const double pitch = lineHeight * points_;
    set.gapAbove = sectionGap * points_;
    set.height = setting_.rowPadding * points_;
    for (TextLine &line : LinesInPoints(row.cells.front().text, font, width_)) {
        set.lines.push_back({std::move(line.text), font, 0, set.height + (pitch + CapitalHeight(font)) / 2});
        set.height += pitch;
    }
    set.height += setting_.rowPadding * points_;
    return set;
}

double TableDrawing::TitlesHeight() const {
    return titles_.height + (2 * titlePadding + belowTitles) * points_;
}

double TableDrawing::HeightOf(std::size_t first, std::size_t last) const {
    double height = TitlesHeight() + endPadding * points_ + thickRule;
    for (std::size_t row = first; row < last; ++row) {
        height += rows_.at(row).height + (row > first ? rows_.at(row).gapAbove : 0);
    }
    return height;
}

/// Below a point.
void TableDrawing::PaintRule(QPainter &painter, QPointF left, double thickness) const {
    PutRule(painter, QRectF(left, QSizeF(width_, thickness) * DotsPerPoint(*painter.device())), lineColour);
}

/// Returns the height of what it has painted.
double TableDrawing::PaintTitles(QPainter &painter, QPointF topLeft) const {
    const double dots = DotsPerPoint(*painter.device());
    const double padding = titlePadding * points_;
    PaintRule(painter, topLeft, thickRule);
    painter.setPen(lineColour);
    PaintLines(painter, topLeft + QPointF(0, padding * dots), dots, titles_.lines);
    PaintRule(painter, topLeft + QPointF(0, (titles_.height + 2 * padding) * dots), thinRule);
    return TitlesHeight();
}

void TableDrawing::PaintRows(QPainter &painter, QPointF topLeft, std::size_t first, std::size_t last) const {
    const double dots = DotsPerPoint(*painter.device());
    double y = PaintTitles(painter, topLeft);
    const auto corner = [&] { return topLeft + QPointF(0, y * dots); };
    for (std::size_t index = first; index < last; ++index) {
        const SetRow &row = rows_.at(index);
        y += index > first ? row.gapAbove : 0;
        if (row.hasRuleAbove) {
            PaintRule(painter, corner() - QPointF(0, totalGap / 2 * points_ * dots), thinRule);
        }
        painter.setPen(nameColour);
        PaintLines(painter, corner(), dots, row.lines);
        y += row.height;
    }
    y += endPadding * points_;
    PaintRule(painter, corner(), thickRule);
}

} // namespace kelvaro
