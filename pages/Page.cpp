#include "pages/Page.h"

#include "drawing/ChartColours.h"
#include "drawing/PointRuler.h"
#include "drawing/PutRule.h"
#include "drawing/PutText.h"

namespace kelvaro {

namespace {

class ItemPainter {
public:
    explicit ItemPainter(QPainter &painter) : painter_(painter), dots_(DotsPerPoint(*painter.device())) {}

    void operator()(const TextItem &item) const {
        painter_.setPen(item.colour);
        PutText(painter_, item.baseline * dots_, item.text, item.font);
    }

    void operator()(const RuleItem &item) const { PutRule(painter_, OnDevice(item.area), lineColour); }

    void operator()(const ChartItem &item) const {
        item.chart->Paint(painter_, OnDevice(item.square), item.lineWidth * dots_);
    }

    void operator()(const TableItem &item) const {
        item.table->PaintRows(painter_, item.topLeft * dots_, item.first, item.last);
    }

private:
    QRectF OnDevice(const QRectF &area) const { return {area.topLeft() * dots_, area.size() * dots_}; }

    QPainter &painter_;
    double dots_;
};

} // namespace

void PaintPage(const Page &page, QPainter &painter) {
    painter.save();
    // A name in a script that runs to the left does not turn the line that it stands in.
    painter.setLayoutDirection(Qt::LeftToRight);
    for (const PageItem &item : page) {
        std::visit(ItemPainter(painter), item);
    }
    painter.restore();
}

} // namespace kelvaro
