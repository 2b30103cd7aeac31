#include "drawing/PutText.h"

#include <QPaintEngine>
#include <QPainterPath>

namespace kelvaro {

namespace {

constexpr int outlinedSize = 256; // pixels

void PutOutlines(QPainter &painter, QPointF baseline, const QString &text, QFont font) {
    const double pixels = font.pointSizeF() * painter.device()->logicalDpiY() / 72;
    font.setPixelSize(outlinedSize);
    QPainterPath outlines;
    outlines.addText(QPointF(), font, text);
    painter.save();
    painter.translate(baseline);
    painter.scale(pixels / outlinedSize, pixels / outlinedSize);
    painter.fillPath(outlines, painter.pen().color());
    painter.restore();
}

} // namespace

void PutText(QPainter &painter, QPointF baseline, const QString &text, const QFont &font) {
    if (painter.paintEngine()->type() == QPaintEngine::SVG) {
        PutOutlines(painter, baseline, text, font);
        return;
    }
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font);
    painter.drawText(baseline, text);
}

} // namespace kelvaro
