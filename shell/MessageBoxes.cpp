#include "shell/MessageBoxes.h"

#include <QMessageBox>

namespace kelvaro {

void ShowError(QWidget *parent, const std::exception &error) {
    QMessageBox::critical(parent, QString(), QString::fromUtf8(error.what()));
}

void ShowNotice(QWidget *window, const Notice &notice) {
    const QString text = QString::fromStdString(notice.text);
    if (notice.icon == Notice::Icon::Critical) {
        QMessageBox::critical(window, window->windowTitle(), text);
    } else {
        QMessageBox::information(window, window->windowTitle(), text);
    }
    if (auto *control = window->findChild<QWidget *>(QString::fromStdString(notice.focus))) {
        control->setFocus();
    }
}

} // namespace kelvaro
