#pragma once

#include "runtime/Notice.h"

#include <QWidget>

#include <exception>
#include <functional>

namespace kelvaro {

// Messages are plain text, and are cut where they are longer than a screen.

/// Shows the description of an unexpected error in a critical message box without a title of its own.
void ShowError(QWidget *parent, const std::exception &error);

/// Does some work and shows the error that breaks it off.
void Guarded(QWidget *parent, const std::function<void()> &work);

/// The control that a notice names; null where it names none of the window.
QWidget *FieldOf(const QWidget &window, const Notice &notice);

/// Shows a notice under the caption of its window and gives the focus to the control that it names.
void ShowNotice(QWidget *window, const Notice &notice);

/// Asks a question and returns whether the answer is yes. What Enter presses is no.
bool IsConfirmed(QWidget *window, const QString &title, const QString &question);

} // namespace kelvaro
