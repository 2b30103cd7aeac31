#pragma once

#include "drawing/TextLines.h"

#include <QFont>
#include <QPainter>
#include <QString>

#include <vector>

namespace kelvaro {

// Measures in points, of text that is painted later, on whatever device. They hold for fonts without hinting,
// which are set in points.

/// The units of a painter that make a point.
double DotsPerPoint(const QPainter &painter);

double WidthOf(const QString &text, const QFont &font);

/// The height of a capital letter.
double CapitalHeight(const QFont &font);

/// The lines of a text in a width, without places to break that a line does not end at.
std::vector<TextLine> LinesInPoints(const QString &text, const QFont &font, double width);

} // namespace kelvaro
