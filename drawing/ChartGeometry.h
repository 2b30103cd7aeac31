#pragma once

#include "horoscope/record/ChartForm.h"

#include <QLineF>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <array>
#include <vector>

namespace kelvaro {

// The drawings of the three chart styles on a square of side 1, its origin at the top left.

/// The outlines of the twelve cells, all of them convex: by sign, Aries first, in the South and East
/// drawings, by house, the first house first, in the North drawing.
std::array<QPolygonF, 12> CellOutlines(ChartStyle style);

/// The lines inside the square, each of them once; the square's own border is not among them.
std::vector<QLineF> InnerLines(ChartStyle style);

/// The part of the drawing that belongs to no cell; empty in the North drawing.
QRectF OpenCentre(ChartStyle style);

/// The inner corner of a North cell, beside which its sign number stands. Houses are counted from 0 here.
QPointF NumberCorner(std::size_t house);

} // namespace kelvaro
