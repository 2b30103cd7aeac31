#pragma once

#include "store/masters/Masters.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QPushButton;

namespace kelvaro {

/// What the dialogs of the masters have in common: they open no larger than the screen, a line takes no more
/// than a name has, Enter goes from field to field and presses buttons, outcomes are told, and errors are
/// shown with what was typed left in its place.
class MasterDialog : public QDialog {
public:
    using QDialog::QDialog;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

    /// Shows a notice; what stands in the line that it names is selected, ready to be typed over.
    void Tell(const Notice &notice);

    /// Tells what came of storing a row. Whether it is stored.
    bool Conclude(const store::Outcome &outcome);

    /// Does some work whenever a button is pressed, or a list chooses another row, and shows the error that
    /// breaks it off.
    void OnPress(QPushButton *button, const std::function<void()> &work);
    void OnChoiceOf(QComboBox *box, const std::function<void()> &work);
};

} // namespace kelvaro
