#include "shell/views/HoroscopeView.h"

#include "shell/widgets/ChartColours.h"

#include <algorithm>

namespace kelvaro {

namespace {

constexpr double largestFont = 2; // times the system's size

} // namespace

HoroscopeView::HoroscopeView(QWidget *parent) : QWidget(parent) {
    setPalette(ParchmentPalette());
    setAutoFillBackground(true);
}

QFont HoroscopeView::RoomyFont(double lines, double letters) const {
    const double scale = std::min(height() / (fontMetrics().height() * lines),
                                  width() / (fontMetrics().averageCharWidth() * letters));
    QFont larger = font();
    larger.setPointSizeF(font().pointSizeF() * std::clamp(scale, 1.0, largestFont));
    return larger;
}

} // namespace kelvaro
