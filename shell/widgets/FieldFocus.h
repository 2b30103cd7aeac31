#pragma once

#include <QWidget>

namespace kelvaro {

/// Selects the text of a line or of an editable list, ready to be typed over.
void SelectText(QWidget *field);

/// Gives the focus, with the text of the field selected.
void FocusOn(QWidget *field);

} // namespace kelvaro
