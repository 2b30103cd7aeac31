#include "pages/PageBlock.h"

#include "drawing/PointRuler.h"

#include <algorithm>

namespace kelvaro {

namespace {

class ItemMover {
public:
    explicit ItemMover(QPointF distance) : distance_(distance) {}

    PageItem operator()(TextItem item) const {
        item.baseline += distance_;
        return item;
    }
    PageItem operator()(RuleItem item) const {
        item.area.translate(distance_);
        return item;
    }
    PageItem operator()(ChartItem item) const {
        item.square.translate(distance_);
        return item;
    }
    PageItem operator()(TableItem item) const {
        item.topLeft += distance_;
        return item;
    }

private:
    QPointF distance_;
};

} // namespace

void PageBlock::AddLines(const QString &text, const TextStyle &style, double left, double width,
                         Qt::AlignmentFlag alignment) {
    for (const TextLine &line : LinesInPoints(text, style.font, width)) {
        const double indent = alignment == Qt::AlignHCenter ? (width - line.width) / 2 : 0;
        const double baseline = top_ + (style.pitch + CapitalHeight(style.font)) / 2;
        items_.emplace_back(TextItem{line.text, style.font, style.colour, {left + indent, baseline}});
        top_ += style.pitch;
    }
    height_ = std::max(height_, top_);
}

void PageBlock::AddRule(double left, double width, double thickness) {
    items_.emplace_back(RuleItem{{left, top_, width, thickness}});
    height_ = std::max(height_, top_ + thickness);
}

Page PageBlock::ItemsAt(QPointF origin) const {
    Page placed;
    for (const PageItem &item : items_) {
        placed.push_back(std::visit(ItemMover(origin), item));
    }
    return placed;
}

} // namespace kelvaro
