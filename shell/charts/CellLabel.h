#pragma once

#include "drawing/ChartDrawing.h"

#include <QLabel>

#include <cstddef>

namespace kelvaro {

/// The label of one cell of a chart. It keeps the cell's text as it was filled and draws it as the drawing
/// has placed it.
class CellLabel : public QLabel {
public:
    using Part = void (ChartDrawing::*)(QPainter &painter, std::size_t cell, const QRectF &square) const;

    /// Draws a part of the drawing, which must outlive the label.
    CellLabel(const ChartDrawing &drawing, std::size_t cell, Part part, QWidget *parent);

    /// Covers an area of the parent, on which the drawing has that square.
    void Cover(const QRect &area, const QRectF &square);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const ChartDrawing &drawing_;
    std::size_t cell_;
    Part part_;
    QRectF square_; ///< in pixels of this label
};

} // namespace kelvaro
