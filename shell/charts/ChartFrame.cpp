#include "shell/charts/ChartFrame.h"

#include "drawing/ChartColours.h"
#include "drawing/ChartPicture.h"
#include "drawing/TextOf.h"
#include "shell/widgets/MessageBoxes.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kelvaro {

namespace {

constexpr double outerMargin = 0.03; // in sides of the square

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
    : QWidget(parent), labels_(style.cells), drawing_({style.style, {}, {}, {}}, ChartFont(font())) {
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        cells_.at(index) = new CellLabel(drawing_, index, &ChartDrawing::PaintCell, this);
        cells_.at(index)->setObjectName(
            QStringLiteral("%1_%2").arg(labelArray).arg(static_cast<int>(index) + style.firstIndex));
        if (style.style == ChartStyle::North) {
            numbers_.at(index) = new CellLabel(drawing_, index, &ChartDrawing::PaintNumber, this);
            numbers_.at(index)->setObjectName(QStringLiteral("Lab_NHouseNo_%1").arg(index + 1));
        }
    }
    OfferMenu(this);
    OfferPicture(this, [this] { return AsPicture(); });
}

void ChartFrame::Show(const ChartForm &form, const ChartHeading &heading,
                      const std::array<std::string, 12> &signNames) {
    drawing_ = ChartDrawing(ContentOf(form, drawing_.Content().style, heading), ChartFont(font()));
    setAccessibleName(
        QStringList{heading.title, heading.name, heading.moment, heading.place}.join(QStringLiteral(", ")));
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        cells_.at(index)->setText(TextOf((form.*labels_).at(index)));
        QString place;
        std::size_t sign = index;
        if (numbers_.at(index) != nullptr) {
            numbers_.at(index)->setText(drawing_.Content().numbers.at(index));
            place = tr("House %1, ").arg(index + 1);
            sign = static_cast<std::size_t>(std::max<int>(form.NorthRasiOfHouse.at(index), 1) - 1);
        }
        cells_.at(index)->setAccessibleName(
            QStringLiteral("%1%2: %3")
                .arg(place, TextOf(signNames.at(sign)), SpokenText(drawing_.Content().cells.at(index))));
    }
    LayOut();
}

QPolygonF ChartFrame::CellOutline(std::size_t cell) const {
    QPolygonF outline = drawing_.CellOutline(cell);
    for (QPointF &corner : outline) {
        corner = square_.topLeft() + corner * square_.width();
    }
    return outline;
}

void ChartFrame::LayOut() {
    // Lines are sharp where cell borders fall on whole device pixels: sides are multiples of 12 of them,
    // since the grids have 3 and 4 fields.
    const double ratio = devicePixelRatioF();
    const double heading = drawing_.HeadingHeight();
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
        for (CellLabel *label : {cells_.at(index), numbers_.at(index)}) {
            if (label != nullptr) {
                label->Cover(area, square_);
            }
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
        drawing_ = ChartDrawing(drawing_.Content(), ChartFont(font()));
        LayOut();
    }
}

void ChartFrame::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    drawing_.PaintFrame(painter, square_, lineWidth_);
    if (cameByKeyboard_ && hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(figureColour, lineWidth_, Qt::DotLine));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
}

Picture ChartFrame::AsPicture() const {
    return PictureOf(drawing_.Content());
}

QRectF ChartFrame::DrawnArea() const {
    return square_.adjusted(0, -drawing_.HeadingHeight() * square_.height(), 0, 0);
}

/// A return to the window, or from a menu, leaves it as it was.
void ChartFrame::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        cameByKeyboard_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    }
    update();
}

void ChartFrame::mousePressEvent(QMouseEvent *event) {
    QWidget::mousePressEvent(event);
    pressed_.reset();
    if (event->button() == Qt::LeftButton && DrawnArea().contains(event->position())) {
        pressed_ = event->pos();
        event->accept(); // the moves are wanted
    }
}

void ChartFrame::mouseMoveEvent(QMouseEvent *event) {
    const bool isHeld = event->buttons().testFlag(Qt::LeftButton);
    if (isHeld && pressed_ &&
        (event->pos() - *pressed_).manhattanLength() >= QApplication::startDragDistance()) {
        pressed_.reset();
        Guarded(this, [this] { drag_.Start(this, AsPicture()); });
    }
}

} // namespace kelvaro
