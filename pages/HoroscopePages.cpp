#include "pages/HoroscopePages.h"

#include "drawing/TextOf.h"

#include <utility>

namespace kelvaro {

HoroscopePages::HoroscopePages(QSizeF paper, QString title, QString author, std::vector<QString> pages)
    : paper_(paper), title_(std::move(title)), author_(std::move(author)), pages_(std::move(pages)) {}

void HoroscopePages::Paint(int page, QPainter &painter) const {
    const double scale = painter.device()->logicalDpiY() / 72.0;
    painter.drawText(QPointF(72, 72) * scale, pages_.at(static_cast<std::size_t>(page)));
}

HoroscopePages ComposePages(const HoroscopeState &state, const HoroscopeForms & /*forms*/,
                            store::Connection & /*connection*/, const PageOptions &options) {
    return {QPageSize(options.paper).size(QPageSize::Point), TextOf(state.birth.ChartName), {}, {QString()}};
}

} // namespace kelvaro
