#include "drawing/PutRule.h"

#include <QPaintEngine>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace kelvaro {

namespace {

QRectF OnWholeDots(const QRectF &area, const QTransform &toDots) {
    const QRectF dots = toDots.mapRect(area);
    const QRectF whole(std::round(dots.left()), std::round(dots.top()),
                       std::max(std::round(dots.width()), 1.0), std::max(std::round(dots.height()), 1.0));
    return toDots.inverted().mapRect(whole);
}

} // namespace

void PutRule(QPainter &painter, const QRectF &area, const QColor &colour) {
    if (painter.paintEngine()->type() != QPaintEngine::Raster) {
        painter.fillRect(area, colour);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(OnWholeDots(area, painter.deviceTransform()), colour);
    painter.restore();
}

} // namespace kelvaro
