#include "drawing/ChartDrawing.h"

#include "drawing/ChartColours.h"
#include "drawing/ChartGeometry.h"
#include "drawing/PutText.h"
#include "drawing/TextOf.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kelvaro {

namespace {

// Sizes in sides of the square.
constexpr double cellMargin = 0.009;
constexpr double packedMargin = 0.006;
constexpr double signNumberMargin = 0.009;
constexpr double headingGap = 0.022;
constexpr double diagonalLineWidth = 1.15; // smoothed lines look thinner than those on whole dots

/// A border across the corner of a North cell that keeps the bodies away from the sign number.
CellEdge BorderAtNumber(const PlacedText &number, const ChartFont &font, QPointF corner, QPointF cellMiddle) {
    const PlacedRun &run = number.runs.front();
    const QRectF box(run.baseline - QPointF(0, font.Ascent() * number.size),
                     QSizeF(font.Width(run.text, run.tone), font.Ascent()) * number.size);
    QPointF normal = corner - cellMiddle;
    normal /= std::hypot(normal.x(), normal.y());
    double offset = 1e9;
    for (const QPointF &point : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()}) {
        offset = std::min(offset, QPointF::dotProduct(normal, point));
    }
    return {normal, offset};
}

QPointF MiddleOf(const QPolygonF &outline) {
    QPointF sum;
    for (const QPointF &corner : outline) {
        sum += corner;
    }
    return sum / static_cast<double>(outline.size());
}

CellText CellTextOf(const std::vector<CellBody> &bodies, const ChartForm &form) {
    CellText text;
    text.isListed = form.breaksLines;
    text.runsOn = form.runsOn;
    for (const CellBody &body : bodies) {
        text.entries.push_back(
            {TextOf(body.name), TextOf(body.degrees), body.IsLagna() ? Tone::Lagna : Tone::Name});
    }
    return text;
}

/// The names alone, and a mark that there is more to tell.
CellText NamesAndMark(CellText text) {
    for (CellEntry &entry : text.entries) {
        entry.figure.clear();
    }
    text.entries.push_back({QStringLiteral("*"), {}, Tone::Name});
    return text;
}

QColor ColourOf(Tone tone) {
    switch (tone) {
    case Tone::Figure:
        return figureColour;
    case Tone::Lagna:
        return lagnaColour;
    case Tone::Name:
        break;
    }
    return nameColour;
}

void PaintText(QPainter &painter, const PlacedText &text, const QRectF &square, const ChartFont &font) {
    for (const PlacedRun &run : text.runs) {
        painter.setPen(ColourOf(run.tone));
        PutText(painter, square.topLeft() + square.width() * run.baseline, run.text,
                font.AtSize(text.size * square.width(), painter.device()->logicalDpiY(),
                            run.tone == Tone::Lagna));
    }
}

} // namespace

ChartContent ContentOf(const ChartForm &form, ChartStyle style, const ChartHeading &heading) {
    ChartContent content{style, {}, {}, heading};
    if (form.VisibleFrame == style) {
        std::ranges::transform(form.bodies, content.cells.begin(),
                               [&form](const auto &bodies) { return CellTextOf(bodies, form); });
    }
    if (style == ChartStyle::North) {
        std::ranges::transform(form.Lab_NHouseNo, content.numbers.begin(), TextOf);
    }
    return content;
}

ChartDrawing::ChartDrawing(ChartContent content, ChartFont font, const ChartSizes &sizes)
    : content_(std::move(content)), font_(std::move(font)), sizes_(sizes),
      outlines_(CellOutlines(content_.style)) {
    for (std::size_t index = 0; index < numbers_.size(); ++index) {
        numbers_.at(index) = PlacedNumber(index);
    }
    FitCells();
}

PlacedText ChartDrawing::PlacedNumber(std::size_t house) const {
    const QString text = content_.numbers.at(house);
    if (text.isEmpty()) {
        return {};
    }
    const double width = font_.Width(text, Tone::Figure) * sizes_.number;
    const double height = font_.Ascent() * sizes_.number;
    // Two borders meet at the corner at a right angle, so a box as wide as two digits clears both of them
    // at half its width and height from the corner.
    const double widest = font_.Width(QStringLiteral("12"), Tone::Figure) * sizes_.number;
    const QPointF corner = NumberCorner(house);
    QPointF inward = MiddleOf(outlines_.at(house)) - corner;
    inward /= std::hypot(inward.x(), inward.y());
    const QPointF middle = corner + inward * ((widest + height) / 2 + signNumberMargin);
    return {sizes_.number, {{text, Tone::Figure, middle + QPointF(-width / 2, height / 2)}}};
}

std::vector<CellEdge> ChartDrawing::TextEdges(std::size_t cell) const {
    std::vector<CellEdge> edges = EdgesOf(outlines_.at(cell));
    if (!numbers_.at(cell).runs.empty()) {
        edges.push_back(
            BorderAtNumber(numbers_.at(cell), font_, NumberCorner(cell), MiddleOf(outlines_.at(cell))));
    }
    return edges;
}

/// The size shared by the cells: what the fullest of them needs, those left out that would make all others
/// tiny.
double ChartDrawing::CommonTextSize(const std::array<double, 12> &largest) const {
    double size = sizes_.text;
    for (const double each : largest) {
        if (each >= sizes_.leastCommon) {
            size = std::min(size, each);
        }
    }
    return size;
}

ChartDrawing::FittedCell ChartDrawing::Fitted(std::size_t cell) const {
    const std::vector<CellEdge> edges = TextEdges(cell);
    const auto fitted = [&](const CellText &text, double margin, bool isWhole) {
        CellFitter fitter(text, edges, font_);
        const double largest = fitter.IsEmpty() ? sizes_.text : fitter.LargestSize(margin);
        return FittedCell{std::move(fitter), largest, margin, isWhole};
    };
    CellText text = content_.cells.at(cell);
    FittedCell usual = fitted(text, cellMargin, true);
    if (sizes_.least == 0 || usual.largest >= sizes_.leastCommon) {
        return usual;
    }
    text.isPacked = true;
    FittedCell whole = fitted(text, packedMargin, true);
    if (whole.largest >= sizes_.least) {
        return whole;
    }
    FittedCell names = fitted(NamesAndMark(text), packedMargin, false);
    return names.largest >= sizes_.least ? std::move(names) : fitted(NamesAndMark({}), cellMargin, false);
}

void ChartDrawing::FitCells() {
    std::vector<FittedCell> fitted;
    std::array<double, 12> largest{};
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        fitted.push_back(Fitted(index));
        largest.at(index) = fitted.back().largest;
        if (!fitted.back().isWhole) {
            cellsLeftOut_.push_back(index);
        }
    }
    const double common = CommonTextSize(largest);
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        const FittedCell &cell = fitted[index];
        if (!cell.fitter.IsEmpty()) {
            cells_.at(index) = cell.fitter.Place(std::min(common, cell.largest), cell.margin);
        }
    }
}

double ChartDrawing::HeadingHeight() const {
    return HasSignNumbers() ? sizes_.headingHeight : 0;
}

void ChartDrawing::Paint(QPainter &painter, const QRectF &square, double lineWidth) const {
    PaintFrame(painter, square, lineWidth);
    for (std::size_t cell = 0; cell < cells_.size(); ++cell) {
        PaintCell(painter, cell, square);
        PaintNumber(painter, cell, square);
    }
}

void ChartDrawing::PaintFrame(QPainter &painter, const QRectF &square, double lineWidth) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (const QLineF &line : InnerLines(content_.style)) {
        const bool isDiagonal = line.dx() != 0 && line.dy() != 0;
        painter.setPen(QPen(lineColour, lineWidth * (isDiagonal ? diagonalLineWidth : 1), Qt::SolidLine,
                            Qt::FlatCap, Qt::MiterJoin));
        painter.drawLine(square.topLeft() + line.p1() * square.width(),
                         square.topLeft() + line.p2() * square.width());
    }
    painter.setPen(QPen(lineColour, 2 * lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawRect(square);
    DrawHeading(painter, content_.heading, HasSignNumbers() ? HeadingShape::Band : HeadingShape::Block,
                HeadingArea(square), square.width(), font_, sizes_.heading);
}

void ChartDrawing::PaintCell(QPainter &painter, std::size_t cell, const QRectF &square) const {
    PaintText(painter, cells_.at(cell), square, font_);
}

void ChartDrawing::PaintNumber(QPainter &painter, std::size_t cell, const QRectF &square) const {
    PaintText(painter, numbers_.at(cell), square, font_);
}

QRectF ChartDrawing::HeadingArea(const QRectF &square) const {
    const double side = square.width();
    if (HasSignNumbers()) {
        return {square.left(), square.top() - sizes_.headingHeight * side, side,
                (sizes_.headingHeight - headingGap) * side};
    }
    const QRectF centre = OpenCentre(content_.style);
    const QRectF area(square.topLeft() + centre.topLeft() * side, centre.size() * side);
    return area.marginsRemoved(QMarginsF(1, 1, 1, 1) * (0.02 * side));
}

} // namespace kelvaro
