#pragma once

#include <QWidget>

namespace kelvaro {

/// Makes a window that is about to be shown no larger than its screen has room for.
void KeepWithinScreen(QWidget &window);

} // namespace kelvaro
