#pragma once

#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QString>

namespace kelvaro {

/// Draws a line of text from the left end of its baseline, in the colour of the painter's pen. A drawing in
/// SVG gets the outlines of the letters, since whoever opens it may not have the font.
void PutText(QPainter &painter, QPointF baseline, const QString &text, const QFont &font);

} // namespace kelvaro
