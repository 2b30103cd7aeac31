#include "drawing/ChartHeading.h"

#include "drawing/ChartColours.h"
#include "drawing/PutText.h"
#include "drawing/ShownText.h"
#include "drawing/TextLines.h"
#include "drawing/TextOf.h"

#include <QColor>
#include <QPaintDevice>
#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

namespace kelvaro {

namespace {

constexpr qsizetype longestPart = 60; // letters of a name or a place
constexpr double lineGap = 0.42;      // in font sizes
constexpr int scaleSteps = 12;        // down to the least size

struct HeadingLine {
    QString text;
    double size = 0; ///< in sides of the chart
    bool isBold = false;
    QColor colour;
};

QString Joined(QStringList parts, const QString &between) {
    parts.removeAll(QString());
    return parts.join(between);
}

std::vector<HeadingLine> LinesOf(const ChartHeading &heading, HeadingShape shape, const HeadingSizes &sizes) {
    std::vector<HeadingLine> lines{{heading.title, sizes.title, true, lineColour}};
    if (shape == HeadingShape::Block) {
        lines.push_back({heading.name, sizes.name, false, nameColour});
        lines.push_back({heading.moment, sizes.details, false, figureColour});
        lines.push_back({heading.place, sizes.details, false, figureColour});
    } else {
        lines.push_back({WhoseLine(heading), sizes.band, false, nameColour});
    }
    std::erase_if(lines, [](const HeadingLine &line) { return line.text.isEmpty(); });
    return lines;
}

/// The lines at one size, measured for an area.
class SetHeading {
public:
    SetHeading(const std::vector<HeadingLine> &lines, const QRectF &area, double side, const ChartFont &font,
               const QPaintDevice &device)
        : area_(area) {
        for (const HeadingLine &line : lines) {
            const double size = line.size * side;
            Part part{font.AtSize(size, device.logicalDpiY(), line.isBold),
                      line.colour,
                      {},
                      0,
                      parts_.empty() ? 0 : lineGap * size};
            part.lines = TextLines(line.text, part.font, device, area.width());
            part.lineHeight = QFontMetricsF(part.font, &device).height();
            for (const TextLine &each : part.lines) {
                width_ = std::max(width_, each.width);
            }
            height_ += part.gap + part.lineHeight * static_cast<double>(part.lines.size());
            parts_.push_back(std::move(part));
        }
    }

    bool Fits() const { return width_ <= area_.width() && height_ <= area_.height(); }

    void Draw(QPainter &painter) const {
        double top = area_.center().y() - height_ / 2;
        for (const Part &part : parts_) {
            const double ascent = QFontMetricsF(part.font, painter.device()).ascent();
            painter.setPen(part.colour);
            top += part.gap;
            for (const TextLine &line : part.lines) {
                PutText(painter, {area_.center().x() - line.width / 2, top + ascent}, line.text, part.font);
                top += part.lineHeight;
            }
        }
    }

private:
    struct Part {
        QFont font;
        QColor colour;
        std::vector<TextLine> lines;
        double lineHeight;
        double gap; ///< above the part
    };

    std::vector<Part> parts_;
    QRectF area_;
    double width_ = 0;
    double height_ = 0;
};

} // namespace

QString WhoseLine(const ChartHeading &heading) {
    return Joined({heading.name, heading.moment, heading.place}, QStringLiteral("   \u00b7   "));
}

QString NameAndTitle(const ChartHeading &heading) {
    return Joined({heading.name, heading.title}, QStringLiteral(" "));
}

ChartHeading HeadingOf(const HoroscopeState &state, const QString &title) {
    const auto text = [](const std::string &field) { return Breakable(OneLine(TextOf(field), longestPart)); };
    const auto twoDigits = [&](const std::string &field) { return text(field).rightJustified(2, u'0'); };
    QStringList place{text(state.birth.BirthCity), text(state.birth.BirthCountry)};
    place.removeAll(QString());
    return {title, text(state.birth.ChartName),
            QStringLiteral("%1/%2/%3  %4:%5")
                .arg(twoDigits(state.birth.BirthDay), text(state.birth.BirthMonth),
                     text(state.birth.BirthYear), twoDigits(state.birth.BirthHour),
                     twoDigits(state.birth.BirthMinute)),
            place.join(QStringLiteral(", "))};
}

void DrawHeading(QPainter &painter, const ChartHeading &heading, HeadingShape shape, const QRectF &area,
                 double side, const ChartFont &font, const HeadingSizes &sizes) {
    const std::vector<HeadingLine> lines = LinesOf(heading, shape, sizes);
    const double scaleStep = (1 - sizes.leastScale) / scaleSteps;
    const auto setAt = [&](int step) {
        return SetHeading(lines, area, side * (1 - scaleStep * step), font, *painter.device());
    };
    // Halved, not counted down: a text in a script without a font takes long to measure.
    int tooLarge = -1;
    int fitting = scaleSteps;
    for (int step = 0; fitting - tooLarge > 1; step = (tooLarge + fitting) / 2) {
        (setAt(step).Fits() ? fitting : tooLarge) = step;
    }
    setAt(fitting).Draw(painter);
}

} // namespace kelvaro
