#pragma once

#include "runtime/Notice.h"

#include <QWidget>

#include <exception>

namespace kelvaro {

/// Shows the description of an unexpected error in a critical message box without a title of its own.
void ShowError(QWidget *parent, const std::exception &error);

/// Shows a notice under the caption of its window and gives the focus to the control that it names.
void ShowNotice(QWidget *window, const Notice &notice);

} // namespace kelvaro
