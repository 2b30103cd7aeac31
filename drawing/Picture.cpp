#include "drawing/Picture.h"

#include "drawing/PointRuler.h"
#include "drawing/SvgCanvas.h"

#include <QBuffer>
#include <QCoreApplication>

#include <algorithm>

namespace kelvaro {

namespace {

constexpr int printDotsPerInch = 300;
constexpr int svgUnitsPerInch = 720; // whole units are fine enough for the size of the picture

QSize SizeIn(const Picture &picture, int dotsPerInch) {
    return (picture.size * dotsPerInch / pointsPerInch).toSize().expandedTo({1, 1});
}

} // namespace

QImage ImageOf(const Picture &picture) {
    QImage image(SizeIn(picture, printDotsPerInch), QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(printDotsPerInch * inchesPerMetre));
    image.setDotsPerMeterY(qRound(printDotsPerInch * inchesPerMetre));
    image.fill(Qt::white);
    QPainter painter(&image);
    picture.paint(painter);
    return image;
}

QByteArray PngOf(const Picture &picture) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    ImageOf(picture).save(&file, "PNG");
    return file.data();
}

QByteArray SvgOf(const Picture &picture) {
    SvgCanvas canvas(SizeIn(picture, svgUnitsPerInch), svgUnitsPerInch);
    QPainter painter(&canvas);
    painter.fillRect(QRect(0, 0, canvas.width(), canvas.height()), Qt::white);
    picture.paint(painter);
    painter.end();
    return canvas.File(picture.name, QCoreApplication::applicationName());
}

} // namespace kelvaro
