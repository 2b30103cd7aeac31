#pragma once

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QSizeF>
#include <QString>

#include <functional>

namespace kelvaro {

/// Something drawn that leaves the program by itself: into a document, into a file.
struct Picture {
    QString name; ///< what it shows, and whose that is
    QSizeF size;  ///< in points

    /// Paints it whole from the painter's origin, a point being as many units as the device's resolution
    /// makes of it.
    std::function<void(QPainter &painter)> paint;
};

// The ground is white, not parchment: the documents that a picture goes into are white paper, and a printer
// should not spend its ink on a ground. It is not left transparent, as dark ink would not show on a dark
// page.

/// The picture in dots for print, 300 to an inch, with its size in centimetres.
QImage ImageOf(const Picture &picture);

/// The same as the bytes of a PNG file.
QByteArray PngOf(const Picture &picture);

/// The picture in lines and outlines of letters, as the bytes of an SVG file. Raises RuntimeError for what
/// such a file cannot hold: images, gradients, clipped drawings.
QByteArray SvgOf(const Picture &picture);

} // namespace kelvaro
