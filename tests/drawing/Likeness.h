#pragma once

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cstdlib>

/// What another reader makes of an SVG file; a null image where it cannot read it.
inline QImage ImageOfSvg(const QByteArray &svg, QSize size, const QColor &ground) {
    QSvgRenderer renderer(svg);
    if (!renderer.isValid()) {
        return {};
    }
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

/// An image in larger dots, in which the smoothing of edges weighs less.
inline QImage InSpots(const QImage &image, int side) {
    return image.scaled(image.size() / side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// How far two images of one size are from one another, from 0 to 1, in the channel and the dot where they
/// differ most.
inline double Difference(const QImage &one, const QImage &other) {
    if (one.isNull() || one.size() != other.size()) {
        return 1;
    }
    int most = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            most = std::max({most, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                             std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
        }
    }
    return most / 255.0;
}
