#pragma once

#include <QBrush>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QString>

#include <vector>

namespace kelvaro {

/// A drawing of few shapes from an SVG file, sharp at any size. It knows what icons are drawn with: paths,
/// rectangles, circles and ellipses, alone and in groups, in plain colours.
class IconDrawing {
public:
    /// Raises RuntimeError where the file cannot be read, or holds an element or an attribute that is not
    /// known here.
    explicit IconDrawing(const QString &file);

    /// Paints the drawing as large as the area allows, in its middle.
    void Paint(QPainter &painter, const QRectF &area) const;

    /// The drawing on a transparent ground, in dots of the screen.
    QPixmap At(QSize size) const;

private:
    struct Shape {
        QPainterPath outline;
        QBrush fill;
        QPen stroke;
    };

    friend class IconReader;

    QRectF box_;
    std::vector<Shape> shapes_;
};

} // namespace kelvaro
