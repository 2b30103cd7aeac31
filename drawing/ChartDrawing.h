#pragma once

#include "drawing/ChartHeading.h"
#include "drawing/PolygonText.h"
#include "horoscope/record/ChartForm.h"

#include <QPainter>
#include <QPolygonF>
#include <QRectF>

#include <array>
#include <cstddef>

namespace kelvaro {

/// What a chart says. Cells are those of the style: by sign, or by house in the North drawing.
struct ChartContent {
    ChartStyle style = ChartStyle::Unknown;
    std::array<CellText, 12> cells;
    std::array<QString, 12> numbers; ///< of the signs at the houses, in the North drawing only
    ChartHeading heading;
};

/// What a window of a chart says in a style. The bodies of another style are left out.
ChartContent ContentOf(const ChartForm &form, ChartStyle style, const ChartHeading &heading);

/// A chart fitted to a square, to be painted at any size on anything.
class ChartDrawing {
public:
    ChartDrawing(ChartContent content, const ChartFont &font);

    const ChartContent &Content() const { return content_; }

    /// The room above the square that the heading takes up, in sides of the square; 0 where the heading
    /// stands in the middle of the drawing.
    double HeadingHeight() const;

    /// The outline of a cell on a square of side 1.
    const QPolygonF &CellOutline(std::size_t cell) const { return outlines_.at(cell); }

    /// Paints the whole chart on a square, in units of the painter. The border is twice as wide as a line.
    void Paint(QPainter &painter, const QRectF &square, double lineWidth) const;

    // The parts of it.
    void PaintFrame(QPainter &painter, const QRectF &square, double lineWidth) const; ///< lines and heading
    void PaintCell(QPainter &painter, std::size_t cell, const QRectF &square) const;
    void PaintNumber(QPainter &painter, std::size_t cell, const QRectF &square) const;

private:
    bool HasSignNumbers() const { return content_.style == ChartStyle::North; }
    PlacedText PlacedNumber(std::size_t house) const;
    std::vector<CellEdge> TextEdges(std::size_t cell) const;
    void FitCells();
    QRectF HeadingArea(const QRectF &square) const;

    ChartContent content_;
    ChartFont font_;
    std::array<QPolygonF, 12> outlines_;
    std::array<PlacedText, 12> cells_;
    std::array<PlacedText, 12> numbers_;
};

} // namespace kelvaro
