#include "shell/dialogs/MasterDialog.h"

#include "shell/widgets/FieldFocus.h"
#include "shell/widgets/MessageBoxes.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScreen>

namespace kelvaro {

void MasterDialog::keyPressEvent(QKeyEvent *event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter) {
        QDialog::keyPressEvent(event);
    } else if (auto *button = qobject_cast<QPushButton *>(focusWidget())) {
        button->click();
    } else {
        focusNextChild();
        SelectText(focusWidget());
    }
}

void MasterDialog::showEvent(QShowEvent *event) {
    constexpr double partOfScreen = 0.9; // the rest is for the window's frame
    resize(size().boundedTo(screen()->availableSize() * partOfScreen));
    QDialog::showEvent(event);
}

void MasterDialog::Tell(const Notice &notice) {
    ShowNotice(this, notice);
    if (!notice.focus.empty()) {
        SelectText(findChild<QWidget *>(QString::fromStdString(notice.focus)));
    }
}

void MasterDialog::Guard(const std::function<void()> &work) {
    try {
        work();
    } catch (const std::exception &error) {
        ShowError(this, error);
    }
}

void MasterDialog::TakeDigitsOnly(QLineEdit *line) {
    static const QRegularExpression digits(QStringLiteral("[0-9]*"));
    line->setValidator(new QRegularExpressionValidator(digits, line));
}

} // namespace kelvaro
