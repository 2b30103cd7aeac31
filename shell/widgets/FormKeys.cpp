#include "shell/widgets/FormKeys.h"

#include <QPushButton>
#include <QRegularExpressionValidator>

namespace kelvaro {

bool IsEnter(const QKeyEvent &event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool PressFocused(const QWidget *window) {
    auto *button = qobject_cast<QPushButton *>(window->focusWidget());
    if (button != nullptr) {
        button->click();
    }
    return button != nullptr;
}

void TakeDigitsOnly(QLineEdit *line) {
    static const QRegularExpression digits(QStringLiteral("[0-9]*"));
    line->setValidator(new QRegularExpressionValidator(digits, line));
}

} // namespace kelvaro
