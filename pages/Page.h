#pragma once

#include "drawing/ChartDrawing.h"
#include "drawing/TableDrawing.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <cstddef>
#include <memory>
#include <variant>
#include <vector>

namespace kelvaro {

// What stands on a page, and where. Lengths are in points from the upper left corner of the paper.

struct TextItem {
    QString text;
    QFont font;
    QColor colour;
    QPointF baseline; ///< its left end
};

struct RuleItem {
    QRectF area;
};

struct ChartItem {
    std::shared_ptr<const ChartDrawing> chart;
    QRectF square;
    double lineWidth = 0;
};

/// Some rows of a table, below its titles.
struct TableItem {
    std::shared_ptr<const TableDrawing> table;
    QPointF topLeft;
    std::size_t first = 0;
    std::size_t last = 0; ///< does not belong to them
};

using PageItem = std::variant<TextItem, RuleItem, ChartItem, TableItem>;

/// In reading order.
using Page = std::vector<PageItem>;

/// Paints a page whole, at the resolution of the painter's device.
void PaintPage(const Page &page, QPainter &painter);

} // namespace kelvaro
