#pragma once

#include "drawing/ChartHeading.h"
#include "drawing/PolygonText.h"
#include "horoscope/record/ChartForm.h"

#include <QPainter>
#include <QPolygonF>
#include <QRectF>

#include <array>
#include <cstddef>
#include <vector>

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

/// Sizes of a chart's text, in sides of its square.
struct ChartSizes {
    double text = 0.0285;       ///< of cells that have room enough
    double leastCommon = 0.023; ///< a cell that needs smaller text shrinks alone
    /// No text of a cell is smaller than this. Where there is such a bound, the texts of crowded cells are
    /// packed; where that is not enough, their figures are left out, and in the end the whole text, with an
    /// asterisk in its place.
    double least = 0;
    double number = 0.0205; ///< of the signs at the houses
    HeadingSizes heading;
    double headingHeight = 0.13; ///< above a drawing that has no open centre
};

/// A chart fitted to a square, to be painted at any size on anything.
class ChartDrawing {
public:
    ChartDrawing(ChartContent content, ChartFont font, const ChartSizes &sizes = {});

    const ChartContent &Content() const { return content_; }

    /// The room above the square that the heading takes up, in sides of the square; 0 where the heading
    /// stands in the middle of the drawing.
    double HeadingHeight() const;

    /// The cells without all of their text: whoever draws the chart tells it beside the chart.
    const std::vector<std::size_t> &CellsLeftOut() const { return cellsLeftOut_; }

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
    /// A cell's text in the form that fits, with its largest size.
    struct FittedCell {
        CellFitter fitter;
        double largest;
        double margin;
        bool isWhole;
    };
    FittedCell Fitted(std::size_t cell) const;
    double CommonTextSize(const std::array<double, 12> &largest) const;
    QRectF HeadingArea(const QRectF &square) const;

    ChartContent content_;
    ChartFont font_;
    ChartSizes sizes_;
    std::array<QPolygonF, 12> outlines_;
    std::array<PlacedText, 12> cells_;
    std::array<PlacedText, 12> numbers_;
    std::vector<std::size_t> cellsLeftOut_;
};

} // namespace kelvaro
