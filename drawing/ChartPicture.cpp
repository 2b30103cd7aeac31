#include "drawing/ChartPicture.h"

#include "drawing/HouseFonts.h"
#include "drawing/PointRuler.h"

#include <memory>

namespace kelvaro {

namespace {

constexpr double pictureWidth = 12 / 2.54 * 72; // points
constexpr double outerMargin = 0.03;            // in sides of the square, as lineWidth
constexpr double lineWidth = 0.0019;
constexpr double anySize = 10; // a chart sets its own

} // namespace

Picture PictureOf(const ChartContent &content) {
    const auto drawing = std::make_shared<const ChartDrawing>(content, ChartFont(SansFont(anySize)));
    const double side = pictureWidth / (1 + 2 * outerMargin);
    const QPointF corner(outerMargin * side, (outerMargin + drawing->HeadingHeight()) * side);
    return {NameAndTitle(content.heading),
            {pictureWidth, corner.y() + (1 + outerMargin) * side},
            [drawing, side, corner](QPainter &painter) {
                const double point = DotsPerPoint(*painter.device());
                drawing->Paint(painter, QRectF(corner * point, QSizeF(side, side) * point),
                               lineWidth * side * point);
            }};
}

} // namespace kelvaro
