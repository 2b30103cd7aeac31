#pragma once

#include "runtime/Notice.h"

#include <QDialog>
#include <QLineEdit>

#include <functional>

namespace kelvaro {

/// What the dialogs of the masters have in common: they open no larger than the screen, Enter goes from field
/// to field and presses buttons, outcomes are told, and errors are shown with what was typed left in its
/// place.
class MasterDialog : public QDialog {
public:
    using QDialog::QDialog;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

    /// Shows a notice; what stands in the line that it names is selected, ready to be typed over.
    void Tell(const Notice &notice);

    /// Does some work and shows the error that breaks it off.
    void Guard(const std::function<void()> &work);

    /// Lets only digits be typed or pasted into a line.
    static void TakeDigitsOnly(QLineEdit *line);
};

} // namespace kelvaro
