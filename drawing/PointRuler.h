#pragma once

#include "drawing/TextLines.h"

#include <QFont>
#include <QPaintDevice>
#include <QString>

#include <vector>

namespace kelvaro {

// Measures in points, of text that is painted later, on whatever device. They hold for fonts without hinting,
// which are set in points.

constexpr double pointsPerInch = 72;
constexpr double inchesPerMetre = 1 / 0.0254;

/// The units of a device that make a point.
double DotsPerPoint(const QPaintDevice &device);

double WidthOf(const QString &text, const QFont &font);

/// The height of a capital letter.
double CapitalHeight(const QFont &font);

/// The lines of a text in a width, without places to break that a line does not end at.
std::vector<TextLine> LinesInPoints(const QString &text, const QFont &font, double width);

} // namespace kelvaro
