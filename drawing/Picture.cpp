#include "drawing/Picture.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QSvgGenerator>

#include <algorithm>

namespace kelvaro {

namespace {

constexpr double pointsPerInch = 72;
constexpr double inchesPerMetre = 1 / 0.0254;
constexpr int printDotsPerInch = 300;
constexpr int svgUnitsPerInch = 720; // whole units are fine enough for the size of the picture

QSize SizeIn(const Picture &picture, int dotsPerInch) {
    return (picture.size * dotsPerInch / pointsPerInch).toSize().expandedTo({1, 1});
}

/// The generator writes its title as it stands, and characters that no text has would spoil the file.
QString TitleText(const QString &name) {
    QString text;
    for (const QChar each : name) {
        if (!each.isNonCharacter() && !each.isSurrogate() && each.category() != QChar::Other_Control) {
            text += each;
        }
    }
    return text.toHtmlEscaped();
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
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QSvgGenerator svg;
    svg.setOutputDevice(&file);
    svg.setResolution(svgUnitsPerInch);
    svg.setSize(SizeIn(picture, svgUnitsPerInch));
    svg.setViewBox(QRect(QPoint(), svg.size()));
    svg.setTitle(TitleText(picture.name));
    svg.setDescription(QCoreApplication::applicationName());
    QPainter painter(&svg);
    painter.fillRect(svg.viewBox(), Qt::white);
    picture.paint(painter);
    painter.end();
    return file.data();
}

} // namespace kelvaro
