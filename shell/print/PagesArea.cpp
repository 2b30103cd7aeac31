#include "shell/print/PagesArea.h"

#include "drawing/ChartColours.h"
#include "drawing/PointRuler.h"
#include "shell/widgets/ParchmentPalette.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kelvaro {

namespace {

constexpr int gap = 12;        // pixels around a sheet
constexpr int wheelStep = 120; // eighths of a degree
constexpr int linesPerPage = 20;
constexpr std::array zoomSteps{PagesArea::leastZoom, 0.33, 0.5, 0.67, 0.75, 0.9, 1.0, 1.25, 1.5, 2.0, 3.0,
                               PagesArea::mostZoom};

/// The zoom after a step, upwards or downwards.
double ZoomBeside(double zoom, int direction) {
    constexpr double same = 0.005;
    if (direction > 0) {
        const auto *next = std::ranges::upper_bound(zoomSteps, zoom + same);
        return next == zoomSteps.end() ? zoomSteps.back() : *next;
    }
    const auto *next = std::ranges::lower_bound(zoomSteps, zoom - same);
    return next == zoomSteps.begin() ? zoomSteps.front() : *std::prev(next);
}

} // namespace

PagesArea::PagesArea(QWidget *parent) : QAbstractScrollArea(parent) {
    setObjectName(QStringLiteral("pagesArea"));
    setAccessibleName(tr("Preview of the pages"));
    setFocusPolicy(Qt::StrongFocus);
    // A bar that comes and goes would change the width that pages are fitted to.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QPalette colours = ParchmentPalette();
    colours.setColor(QPalette::Base, parchmentColour.darker(112));
    setPalette(colours);
}

void PagesArea::Show(std::shared_ptr<const HoroscopePages> pages) {
    pages_ = std::move(pages);
    current_ = std::clamp(current_, 0, std::max(PageCount() - 1, 0));
    FitAgain();
    viewport()->update();
    emit Changed();
}

void PagesArea::GoTo(int page) {
    const QScopedValueRollback going(isGoing_, true);
    current_ = std::clamp(page, 0, std::max(PageCount() - 1, 0));
    verticalScrollBar()->setValue(qRound(current_ * (SizeAt(zoom_).height() + gap)));
    emit Changed();
}

void PagesArea::SetFit(Fit fit) {
    fit_ = fit;
    FitAgain();
    if (fit == Fit::WholePage) {
        GoTo(current_);
    }
    emit Changed();
}

void PagesArea::SetZoom(double zoom) {
    fit_ = Fit::None;
    ZoomAt(std::clamp(zoom, leastZoom, mostZoom), viewport()->rect().center());
}

QRectF PagesArea::PlaceOf(int page) const {
    const QSizeF size = SizeAt(zoom_);
    const double left = std::max((viewport()->width() - size.width()) / 2, static_cast<double>(gap)) -
                        horizontalScrollBar()->value();
    const double top = gap + page * (size.height() + gap) - verticalScrollBar()->value();
    // On whole pixels, so that the paper has sharp edges and scrolled parts meet.
    return {QPointF(std::round(left), std::round(top)), size};
}

QSizeF PagesArea::SizeAt(double zoom) const {
    return pages_ ? pages_->Paper() * (zoom * DotsPerPoint(*this)) : QSizeF();
}

QSize PagesArea::Content() const {
    const QSizeF size = SizeAt(zoom_);
    // A part of a pixel is nothing to scroll for.
    return {qFloor(size.width()) + 2 * gap, gap + qFloor(PageCount() * (size.height() + gap))};
}

double PagesArea::ZoomToFit() const {
    const QSizeF size = SizeAt(1);
    const QSize room = viewport()->size() - QSize(2 * gap, 2 * gap);
    const double ofWidth = room.width() / size.width();
    const double zoom = fit_ == Fit::WholePage ? std::min(ofWidth, room.height() / size.height()) : ofWidth;
    return std::clamp(zoom, 0.1, mostZoom);
}

void PagesArea::FitAgain() {
    if (pages_ && fit_ != Fit::None) {
        ZoomAt(ZoomToFit(), {viewport()->width() / 2, 0});
    } else {
        SetScrollBars();
    }
}

void PagesArea::ZoomByStep(int direction, QPoint fixed) {
    fit_ = Fit::None;
    ZoomAt(ZoomBeside(zoom_, direction), fixed);
}

/// The spot of a page that is seen at the fixed place stays there.
void PagesArea::ZoomAt(double zoom, QPoint fixed) {
    if (!pages_) {
        return;
    }
    const QPointF corner = PlaceOf(0).topLeft();
    const QSizeF before = SizeAt(zoom_);
    const double x = (fixed.x() - corner.x()) / before.width();
    const double y = (fixed.y() - corner.y()) / (before.height() + gap);
    zoom_ = zoom;
    {
        const QScopedValueRollback going(isGoing_, true);
        const QSizeF after = SizeAt(zoom_);
        SetScrollBars();
        horizontalScrollBar()->setValue(qRound(gap + x * after.width() - fixed.x()));
        verticalScrollBar()->setValue(qRound(gap + y * (after.height() + gap) - fixed.y()));
    }
    FindCurrent();
    viewport()->update();
    emit Changed();
}

void PagesArea::SetScrollBars() {
    const QSize content = Content();
    const QSize view = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(content.width() - view.width(), 0));
    horizontalScrollBar()->setPageStep(view.width());
    horizontalScrollBar()->setSingleStep(view.width() / linesPerPage);
    verticalScrollBar()->setRange(0, std::max(content.height() - view.height(), 0));
    const int page = qRound(SizeAt(zoom_).height()) + gap;
    verticalScrollBar()->setPageStep(fit_ == Fit::WholePage ? page
                                                            : view.height() - view.height() / linesPerPage);
    verticalScrollBar()->setSingleStep(std::max(view.height() / linesPerPage, 1));
}

/// The page in the middle of the view.
void PagesArea::FindCurrent() {
    const double height = SizeAt(zoom_).height() + gap;
    const double middle = verticalScrollBar()->value() + viewport()->height() / 2.0 - gap;
    current_ = std::clamp(static_cast<int>(middle / height), 0, std::max(PageCount() - 1, 0));
}

void PagesArea::scrollContentsBy(int /*dx*/, int /*dy*/) {
    if (!isGoing_ && pages_) {
        FindCurrent();
        emit Changed();
    }
    viewport()->update();
}

void PagesArea::resizeEvent(QResizeEvent *event) {
    QAbstractScrollArea::resizeEvent(event);
    FitAgain();
}

void PagesArea::wheelEvent(QWheelEvent *event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    wheelAngle_ += event->angleDelta().y();
    for (; std::abs(wheelAngle_) >= wheelStep; wheelAngle_ -= wheelAngle_ > 0 ? wheelStep : -wheelStep) {
        ZoomByStep(wheelAngle_ > 0 ? 1 : -1, event->position().toPoint());
    }
    event->accept();
}

void PagesArea::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Home) {
        GoTo(0);
    } else if (event->key() == Qt::Key_End) {
        GoTo(PageCount() - 1);
    } else {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PagesArea::paintEvent(QPaintEvent *event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().base());
    for (int page = 0; page < PageCount(); ++page) {
        const QRectF place = PlaceOf(page);
        if (!place.intersects(event->rect())) {
            continue;
        }
        painter.save();
        painter.fillRect(place, Qt::white);
        painter.setPen(QPen(figureColour, 0));
        painter.drawRect(place);
        painter.setClipRect(place.intersected(event->rect()));
        painter.translate(place.topLeft());
        painter.scale(zoom_, zoom_);
        pages_->Paint(page, painter);
        painter.restore();
    }
    if (cameByKeyboard_ && hasFocus()) {
        painter.setPen(QPen(figureColour, 1, Qt::DotLine));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -2, -2));
    }
}

/// A return to the window leaves it as it was.
void PagesArea::focusInEvent(QFocusEvent *event) {
    QAbstractScrollArea::focusInEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        cameByKeyboard_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    }
    viewport()->update();
}

void PagesArea::focusOutEvent(QFocusEvent *event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

} // namespace kelvaro
