#include "shell/window/StatusPanel.h"

#include "drawing/ChartColours.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>

namespace kelvaro {

namespace {

constexpr int panelHeight = 44;
constexpr int contentShift = 20; // to the left of the panel's middle
constexpr int trackWidth = 210;
constexpr int trackHeight = 14;
constexpr int stepsOfTrack = 14;
constexpr int paintInterval = 16; // milliseconds, that of most screens

void TurnMessageLoop() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Fill(QWidget *widget, const QColor &colour) {
    QPalette colours = widget->palette();
    colours.setColor(QPalette::Window, colour);
    colours.setColor(QPalette::WindowText, lineColour);
    widget->setPalette(colours);
    widget->setAutoFillBackground(true);
}

} // namespace

StatusPanel::StatusPanel(QWidget *parent)
    : QFrame(parent), Frame1_(new QWidget(this)), PicOut_(new QWidget(Frame1_)),
      PicIn_(new QWidget(PicOut_)) {
    setObjectName(QStringLiteral("PicMask"));
    Frame1_->setObjectName(QStringLiteral("Frame1"));
    PicOut_->setObjectName(QStringLiteral("PicOut"));
    PicIn_->setObjectName(QStringLiteral("PicIn"));
    Fill(this, parchmentColour.lighter(105));
    Fill(PicOut_, parchmentColour.darker(115));
    Fill(PicIn_, lagnaColour);
    setFrameShape(QFrame::Box);

    PicOut_->setFixedSize(trackWidth, trackHeight);
    auto *layout = new QHBoxLayout(Frame1_);
    layout->setSpacing(12);
    auto *words = new QLabel(tr("Please Wait ...."));
    words->setPalette(palette());
    layout->addWidget(words);
    layout->addWidget(PicOut_);
    Frame1_->adjustSize();
    hide();
}

void StatusPanel::Open(const QRect &area) {
    PicIn_->setGeometry(0, 0, 0, trackHeight);
    Span(area);
    raise();
    show(); // which centres the content at last, as every change of size does
    Frame1_->move(Frame1_->x() - contentShift, Frame1_->y());
    Paint();
}

/// Updates are enabled for no longer than this: a repaint for each pixel of the fill would take longer than
/// the run.
void StatusPanel::Paint() {
    PicOut_->setUpdatesEnabled(true);
    TurnMessageLoop();
    PicOut_->setUpdatesEnabled(false);
    sincePaint_.start();
}

void StatusPanel::Advance() {
    const int target = PicIn_->width() + PicOut_->width() / stepsOfTrack;
    while (PicIn_->width() < target) {
        if (sincePaint_.hasExpired(paintInterval)) {
            Paint();
        } else {
            TurnMessageLoop();
        }
        PicIn_->resize(PicIn_->width() + 1, trackHeight);
    }
}

void StatusPanel::Close() {
    resize(0, panelHeight);
    TurnMessageLoop();
    hide();
}

void StatusPanel::Span(const QRect &area) {
    setGeometry(area.left(), area.top(), area.width(), panelHeight);
}

void StatusPanel::resizeEvent(QResizeEvent *event) {
    QFrame::resizeEvent(event);
    Frame1_->move((width() - Frame1_->width()) / 2, (height() - Frame1_->height()) / 2);
}

} // namespace kelvaro
