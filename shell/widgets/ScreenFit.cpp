#include "shell/widgets/ScreenFit.h"

#include <QScreen>

namespace kelvaro {

void KeepWithinScreen(QWidget &window) {
    constexpr double partOfScreen = 0.9; // the rest is for the window's frame
    window.resize(window.size().boundedTo(window.screen()->availableSize() * partOfScreen));
}

} // namespace kelvaro
