#include "drawing/PointRuler.h"

#include <QFontMetricsF>
#include <QImage>

namespace kelvaro {

namespace {

constexpr double finest = 16; // units of the ruler in a point

/// A device on which a point is many dots, so that no width is rounded by much.
const QImage &Ruler() {
    static const QImage ruler = [] {
        constexpr int dotsPerMetre = static_cast<int>(finest * pointsPerInch * inchesPerMetre + 1);
        QImage image(1, 1, QImage::Format_Mono);
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
        return image;
    }();
    return ruler;
}

} // namespace

double DotsPerPoint(const QPaintDevice &device) {
    return device.logicalDpiY() / pointsPerInch;
}

double WidthOf(const QString &text, const QFont &font) {
    return QFontMetricsF(font, &Ruler()).horizontalAdvance(text) / finest;
}

double CapitalHeight(const QFont &font) {
    return QFontMetricsF(font, &Ruler()).capHeight() / finest;
}

std::vector<TextLine> LinesInPoints(const QString &text, const QFont &font, double width) {
    constexpr QChar zeroWidthSpace = u'\u200b';
    std::vector<TextLine> lines = TextLines(text, font, Ruler(), width * finest);
    for (TextLine &line : lines) {
        line.text.remove(zeroWidthSpace);
        line.width /= finest;
    }
    return lines;
}

} // namespace kelvaro
