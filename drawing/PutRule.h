#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace kelvaro {

/// Fills a thin area, which on a screen or in a picture of dots covers whole dots and at least one of them:
/// a rule that falls between two rows of dots is neither lost nor paler than the others.
void PutRule(QPainter &painter, const QRectF &area, const QColor &colour);

} // namespace kelvaro
