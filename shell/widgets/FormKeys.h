#pragma once

#include <QKeyEvent>
#include <QLineEdit>

namespace kelvaro {

/// Whether a key is one of the two Enter keys.
bool IsEnter(const QKeyEvent &event);

/// Presses the button of a window that has the focus. False, with nothing done, where no button has it.
bool PressFocused(const QWidget *window);

/// Lets only digits be typed or pasted into a line.
void TakeDigitsOnly(QLineEdit *line);

} // namespace kelvaro
