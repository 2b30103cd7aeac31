#pragma once

#include "drawing/PolygonText.h"
#include "horoscope/record/HoroscopeState.h"

#include <QPainter>
#include <QString>

namespace kelvaro {

/// What stands in the middle of a chart, or above it: which chart it is, and whose. Empty parts are left out.
struct ChartHeading {
    QString title;
    QString name;
    QString moment;
    QString place;
};

/// The heading of a horoscope's chart or table. Long names are shortened.
ChartHeading HeadingOf(const HoroscopeState &state, const QString &title);

/// Whose it is, with moment and place of the birth, in one line.
QString WhoseLine(const ChartHeading &heading);

/// Whose chart or table it is, and which: a name for its picture.
QString NameAndTitle(const ChartHeading &heading);

enum class HeadingShape {
    Block, ///< every item on its own line
    Band,  ///< the title, and below it the rest in one line
};

/// Sizes of a heading's text, in sides of the chart.
struct HeadingSizes {
    double title = 0.046;
    double name = 0.0285;
    double details = 0.0225;
    double band = 0.0235;    ///< what follows the title in a band
    double leastScale = 0.4; ///< of all of them, where there is not room enough
};

/// Draws a heading in the middle of an area. Sizes follow the side of the chart. Long names and places take a
/// second line, and everything becomes smaller where that is not enough.
void DrawHeading(QPainter &painter, const ChartHeading &heading, HeadingShape shape, const QRectF &area,
                 double side, const ChartFont &font, const HeadingSizes &sizes = {});

} // namespace kelvaro
