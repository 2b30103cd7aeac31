#include "shell/charts/ChartHeading.h"

#include "shell/widgets/ChartColours.h"

#include <QColor>
#include <QPaintDevice>
#include <QStringList>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <vector>

namespace kelvaro {

namespace {

constexpr double lineGap = 0.42; // in font sizes
constexpr double leastScale = 0.4;
constexpr double scaleStep = 0.05;

/// Centred lines that break between words, and in words that are longer than a line.
QTextOption Wrapped() {
    QTextOption option(Qt::AlignHCenter);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

struct HeadingLine {
    QString text;
    double size = 0; ///< in sides of the chart
    bool isBold = false;
    QColor colour;
};

std::vector<HeadingLine> LinesOf(const ChartHeading &heading, HeadingShape shape) {
    const HeadingLine title{heading.title, 0.046, true, lineColour};
    if (shape == HeadingShape::Block) {
        return {title,
                {heading.name, 0.0285, false, nameColour},
                {heading.moment, 0.0225, false, figureColour},
                {heading.place, 0.0225, false, figureColour}};
    }
    const QStringList rest{heading.name, heading.moment, heading.place};
    return {title, {rest.join(QStringLiteral("   \u00b7   ")), 0.0235, false, nameColour}};
}

/// The lines at one size, measured for an area.
class SetHeading {
public:
    SetHeading(const std::vector<HeadingLine> &lines, const QRectF &area, double side, const ChartFont &font,
               QPainter &painter)
        : lines_(lines), area_(area) {
        for (const HeadingLine &line : lines) {
            const double size = line.size * side;
            fonts_.push_back(font.AtSize(size, painter.device()->logicalDpiY(), line.isBold));
            painter.setFont(fonts_.back());
            const QRectF box = painter.boundingRect(QRectF(0, 0, area.width(), 1e6), line.text, Wrapped());
            heights_.push_back(std::ceil(box.height()));
            gaps_.push_back(height_ == 0 ? 0 : lineGap * size);
            width_ = std::max(width_, box.width());
            height_ += heights_.back() + gaps_.back();
        }
    }

    bool Fits() const { return width_ <= area_.width() && height_ <= area_.height(); }

    void Draw(QPainter &painter) const {
        double top = area_.center().y() - height_ / 2;
        for (std::size_t index = 0; index < lines_.size(); ++index) {
            top += gaps_[index];
            painter.setFont(fonts_[index]);
            painter.setPen(lines_[index].colour);
            painter.drawText(QRectF(area_.left(), top, area_.width(), heights_[index]), lines_[index].text,
                             Wrapped());
            top += heights_[index];
        }
    }

private:
    const std::vector<HeadingLine> &lines_;
    QRectF area_;
    std::vector<QFont> fonts_;
    std::vector<double> heights_;
    std::vector<double> gaps_; ///< above each line
    double width_ = 0;
    double height_ = 0;
};

} // namespace

void DrawHeading(QPainter &painter, const ChartHeading &heading, HeadingShape shape, const QRectF &area,
                 double side, const ChartFont &font) {
    const std::vector<HeadingLine> lines = LinesOf(heading, shape);
    double scale = 1;
    for (;;) {
        const SetHeading set(lines, area, side * scale, font, painter);
        if (set.Fits() || scale <= leastScale) {
            set.Draw(painter);
            return;
        }
        scale -= scaleStep;
    }
}

} // namespace kelvaro
