#include "shell/print/PagesPrinter.h"

#include "drawing/PointRuler.h"

#include <algorithm>
#include <utility>

namespace kelvaro {

namespace {

constexpr double blankBorder = 36; // of a page, in points; nothing stands in it

/// The first place of a length that keeps it within bounds, as near to the middle as they let it be.
double PlaceWithin(double middle, double length, double least, double most) {
    return std::clamp(middle - length / 2, least, std::max(least, most - length));
}

} // namespace

QRectF PlaceOnSheet(QSizeF page, const QPageLayout &sheet) {
    QPageLayout layout = sheet;
    layout.setUnits(QPageLayout::Point);
    const QRectF paper(QPointF(), layout.fullRect(QPageLayout::Point).size());
    const QRectF reached = paper.marginsRemoved(layout.minimumMargins());
    const QSizeF shown = page - QSizeF(2 * blankBorder, 2 * blankBorder);
    const double scale = std::min({1.0, reached.width() / shown.width(), reached.height() / shown.height()});
    const QSizeF size = shown * scale;
    const QPointF corner(PlaceWithin(paper.center().x(), size.width(), reached.left(), reached.right()),
                         PlaceWithin(paper.center().y(), size.height(), reached.top(), reached.bottom()));
    return {corner - QPointF(blankBorder, blankBorder) * scale, page * scale};
}

PrintJob JobOf(std::shared_ptr<const HoroscopePages> pages) {
    const auto count = static_cast<std::size_t>(pages->Count());
    return {count, [pages = std::move(pages)](QPainter &painter, const QPagedPaintDevice &device,
                                              std::size_t sheet) {
                const QRectF place = PlaceOnSheet(pages->Paper(), device.pageLayout());
                const double scale = place.width() / pages->Paper().width();
                painter.save();
                painter.translate(place.topLeft() * DotsPerPoint(device));
                painter.scale(scale, scale);
                pages->Paint(static_cast<int>(sheet), painter);
                painter.restore();
            }};
}

} // namespace kelvaro
