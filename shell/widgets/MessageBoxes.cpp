#include "shell/widgets/MessageBoxes.h"

#include <QMessageBox>

namespace kelvaro {

namespace {

QMessageBox::Icon IconOf(Notice::Icon icon) {
    switch (icon) {
    case Notice::Icon::None:
        return QMessageBox::NoIcon;
    case Notice::Icon::Critical:
        return QMessageBox::Critical;
    case Notice::Icon::Information:
        break;
    }
    return QMessageBox::Information;
}

} // namespace

void ShowError(QWidget *parent, const std::exception &error) {
    QMessageBox::critical(parent, QString(), QString::fromUtf8(error.what()));
}

void ShowNotice(QWidget *window, const Notice &notice) {
    const QString text = QString::fromStdString(notice.text);
    QMessageBox(IconOf(notice.icon), window->windowTitle(), text, QMessageBox::Ok, window).exec();
    if (notice.focus.empty()) {
        return;
    }
    if (auto *control = window->findChild<QWidget *>(QString::fromStdString(notice.focus))) {
        control->setFocus();
    }
}

} // namespace kelvaro
