#include "shell/charts/ChartFrame.h"

#include "shell/charts/ChartGeometry.h"
#include "shell/widgets/ChartColours.h"

#include <QEvent>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace kelvaro {

namespace {

// Sizes in sides of the square.
constexpr double usualTextSize = 0.0285;
constexpr double leastCommonTextSize = 0.023; // a cell that needs smaller text shrinks alone
constexpr double cellMargin = 0.009;
constexpr double signNumberSize = 0.0205;
constexpr double signNumberMargin = 0.009;
constexpr double outerMargin = 0.03;
constexpr double headingHeight = 0.13; // above a drawing that has no open centre
constexpr double headingGap = 0.022;
constexpr double diagonalLineWidth = 1.15; // smoothed lines look thinner than those on whole dots

/// A border across the corner of a North cell that keeps the bodies away from the sign number.
CellEdge BorderAtNumber(const PlacedText &number, const ChartFont &font, QPointF corner, QPointF cellMiddle) {
    const PlacedRun &run = number.runs.front();
    const QRectF box(run.baseline - QPointF(0, font.Ascent() * number.size),
                     QSizeF(font.Width(run.text, run.tone), font.Ascent()) * number.size);
    QPointF normal = corner - cellMiddle;
    normal /= std::hypot(normal.x(), normal.y());
    double offset = 1e9;
    for (const QPointF &point : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()}) {
        offset = std::min(offset, QPointF::dotProduct(normal, point));
    }
    return {normal, offset};
}

QPointF MiddleOf(const QPolygonF &outline) {
    QPointF sum;
    for (const QPointF &corner : outline) {
        sum += corner;
    }
    return sum / static_cast<double>(outline.size());
}

/// The size shared by the cells: what the fullest of them needs, those left out that would make all others
/// tiny.
double CommonTextSize(const std::array<double, 12> &largest) {
    double size = usualTextSize;
    for (const double each : largest) {
        if (each >= leastCommonTextSize) {
            size = std::min(size, each);
        }
    }
    return size;
}

CellText TextOf(const std::vector<CellBody> &bodies, const ChartForm &form) {
    CellText text;
    text.isListed = form.breaksLines;
    text.runsOn = form.runsOn;
    for (const CellBody &body : bodies) {
        text.entries.push_back({QString::fromStdString(body.name), QString::fromStdString(body.degrees),
                                body.IsLagna() ? Tone::Lagna : Tone::Name});
    }
    return text;
}

/// The bodies as they are read aloud.
QString SpokenText(const CellText &text) {
    QStringList entries;
    for (const CellEntry &entry : text.entries) {
        entries << (entry.figure.isEmpty() ? entry.name : entry.name + u' ' + entry.figure);
    }
    return entries.join(text.isListed ? QStringLiteral(", ") : QStringLiteral(" "));
}

} // namespace

ChartFrame::ChartFrame(const StyleOfChart &style, const QString &labelArray, QWidget *parent)
    : QWidget(parent), style_(style.style), labels_(style.cells), outlines_(CellOutlines(style.style)),
      font_(font()) {
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        cells_.at(index) = new CellLabel(this);
        cells_.at(index)->setObjectName(
            QStringLiteral("%1_%2").arg(labelArray).arg(static_cast<int>(index) + style.firstIndex));
        if (HasSignNumbers()) {
            numbers_.at(index) = new CellLabel(this);
            numbers_.at(index)->setObjectName(QStringLiteral("Lab_NHouseNo_%1").arg(index + 1));
            numbers_.at(index)->SetNameColour(figureColour);
        }
    }
}

void ChartFrame::SetHeading(const ChartHeading &heading) {
    heading_ = heading;
    setAccessibleName(
        QStringList{heading.title, heading.name, heading.moment, heading.place}.join(QStringLiteral(", ")));
    update();
}

void ChartFrame::SetCells(const ChartForm &form, const std::array<std::string, 12> &signNames) {
    const bool isShown = form.VisibleFrame == style_;
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        texts_.at(index) = isShown ? TextOf(form.bodies.at(index), form) : CellText{};
        cells_.at(index)->setText(QString::fromStdString((form.*labels_).at(index)));
        QString place;
        std::size_t sign = index;
        if (HasSignNumbers()) {
            numbers_.at(index)->setText(QString::fromStdString(form.Lab_NHouseNo.at(index)));
            place = tr("House %1, ").arg(index + 1);
            sign = static_cast<std::size_t>(std::max<int>(form.NorthRasiOfHouse.at(index), 1) - 1);
        }
        cells_.at(index)->setAccessibleName(
            QStringLiteral("%1%2: %3")
                .arg(place, QString::fromStdString(signNames.at(sign)), SpokenText(texts_.at(index))));
    }
    FitCells();
    LayOut();
}

QPolygonF ChartFrame::CellOutline(std::size_t cell) const {
    QPolygonF outline = outlines_.at(cell);
    for (QPointF &corner : outline) {
        corner = square_.topLeft() + corner * square_.width();
    }
    return outline;
}

PlacedText ChartFrame::PlacedNumber(std::size_t house) const {
    const QString text = numbers_.at(house)->text();
    if (text.isEmpty()) {
        return {};
    }
    const double width = font_.Width(text, Tone::Name) * signNumberSize;
    const double height = font_.Ascent() * signNumberSize;
    // Two borders meet at the corner at a right angle, so a box as wide as two digits clears both of them
    // at half its width and height from the corner.
    const double widest = font_.Width(QStringLiteral("12"), Tone::Name) * signNumberSize;
    const QPointF corner = NumberCorner(house);
    QPointF inward = MiddleOf(outlines_.at(house)) - corner;
    inward /= std::hypot(inward.x(), inward.y());
    const QPointF middle = corner + inward * ((widest + height) / 2 + signNumberMargin);
    return {signNumberSize, {{text, Tone::Name, middle + QPointF(-width / 2, height / 2)}}};
}

std::vector<CellEdge> ChartFrame::TextEdges(std::size_t cell) const {
    std::vector<CellEdge> edges = EdgesOf(outlines_.at(cell));
    if (HasSignNumbers() && !numbers_.at(cell)->text().isEmpty()) {
        edges.push_back(
            BorderAtNumber(PlacedNumber(cell), font_, NumberCorner(cell), MiddleOf(outlines_.at(cell))));
    }
    return edges;
}

void ChartFrame::FitCells() {
    std::vector<CellFitter> fitters;
    std::array<double, 12> largest{};
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        fitters.emplace_back(texts_.at(index), TextEdges(index), font_);
        largest.at(index) = fitters.back().IsEmpty() ? usualTextSize : fitters.back().LargestSize(cellMargin);
    }
    const double common = CommonTextSize(largest);
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        placed_.at(index) = fitters[index].IsEmpty()
                                ? PlacedText{}
                                : fitters[index].Place(std::min(common, largest.at(index)), cellMargin);
    }
}

void ChartFrame::LayOut() {
    // Lines are sharp where cell borders fall on whole device pixels: sides are multiples of 12 of them,
    // since the grids have 3 and 4 fields.
    const double ratio = devicePixelRatioF();
    const double heading = HasSignNumbers() ? headingHeight : 0;
    const double room = std::min(width() / (1 + 2 * outerMargin), height() / (1 + 2 * outerMargin + heading));
    const double side = std::max(std::floor(room * ratio / 12), 1.0) * 12 / ratio;
    const double lineDots = std::max(std::round(side * ratio * 0.0019), 1.0);
    const double halfDot = std::fmod(lineDots, 2) / 2;
    const auto snapped = [&](double position) { return (std::round(position * ratio) + halfDot) / ratio; };
    lineWidth_ = lineDots / ratio;
    square_ =
        QRectF(snapped((width() - side) / 2), snapped((height() - side + heading * side) / 2), side, side);

    for (std::size_t index = 0; index < cells_.size(); ++index) {
        const QRect area = CellOutline(index).boundingRect().toAlignedRect();
        cells_.at(index)->SetChartFont(font_);
        cells_.at(index)->SetPlacedText(area, placed_.at(index), square_.topLeft(), side);
        if (HasSignNumbers()) {
            numbers_.at(index)->SetChartFont(font_);
            numbers_.at(index)->SetPlacedText(area, PlacedNumber(index), square_.topLeft(), side);
        }
    }
    update();
}

void ChartFrame::resizeEvent(QResizeEvent * /*event*/) {
    LayOut();
}

void ChartFrame::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        font_ = ChartFont(font());
        FitCells();
        LayOut();
    }
}

void ChartFrame::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QLineF &line : InnerLines(style_)) {
        const bool isDiagonal = line.dx() != 0 && line.dy() != 0;
        painter.setPen(QPen(lineColour, lineWidth_ * (isDiagonal ? diagonalLineWidth : 1), Qt::SolidLine,
                            Qt::FlatCap, Qt::MiterJoin));
        painter.drawLine(square_.topLeft() + line.p1() * square_.width(),
                         square_.topLeft() + line.p2() * square_.width());
    }
    painter.setPen(QPen(lineColour, 2 * lineWidth_, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawRect(square_);
    DrawHeading(painter, heading_, HasSignNumbers() ? HeadingShape::Band : HeadingShape::Block, HeadingArea(),
                square_.width(), font_);
}

QRectF ChartFrame::HeadingArea() const {
    const double side = square_.width();
    if (HasSignNumbers()) {
        return {square_.left(), square_.top() - headingHeight * side, side,
                (headingHeight - headingGap) * side};
    }
    const QRectF centre = OpenCentre(style_);
    const QRectF area(square_.topLeft() + centre.topLeft() * side, centre.size() * side);
    return area.marginsRemoved(QMarginsF(1, 1, 1, 1) * (0.02 * side));
}

} // namespace kelvaro
