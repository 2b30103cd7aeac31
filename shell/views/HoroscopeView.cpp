#include "shell/views/HoroscopeView.h"

#include "shell/widgets/ParchmentPalette.h"

#include <QEvent>

#include <algorithm>

namespace kelvaro {

namespace {

constexpr double largestFont = 2; // times the system's size

} // namespace

HoroscopeView::HoroscopeView(QWidget *parent) : QWidget(parent) {
    setPalette(ParchmentPalette());
    setAutoFillBackground(true);
}

/// Under a theme with a style sheet, parts do not inherit the colours of what they stand on.
bool HoroscopeView::event(QEvent *event) {
    if (event->type() == QEvent::Polish) {
        const QList<QWidget *> parts = findChildren<QWidget *>();
        for (QWidget *part : parts) {
            if (!part->testAttribute(Qt::WA_SetPalette)) {
                part->setPalette(part->parentWidget()->palette());
            }
        }
    }
    return QWidget::event(event);
}

QFont HoroscopeView::RoomyFont(double lines, double letters) const {
    const double scale = std::min(height() / (fontMetrics().height() * lines),
                                  width() / (fontMetrics().averageCharWidth() * letters));
    QFont larger = font();
    larger.setPointSizeF(font().pointSizeF() * std::clamp(scale, 1.0, largestFont));
    return larger;
}

} // namespace kelvaro
