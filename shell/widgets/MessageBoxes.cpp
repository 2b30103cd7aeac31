#include "shell/widgets/MessageBoxes.h"

#include "shell/widgets/TextOf.h"

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

QWidget *FieldOf(const QWidget &window, const Notice &notice) {
    return notice.focus.empty() ? nullptr : window.findChild<QWidget *>(TextOf(notice.focus));
}

void ShowError(QWidget *parent, const std::exception &error) {
    QMessageBox::critical(parent, QString(), QString::fromUtf8(error.what()));
}

void Guarded(QWidget *parent, const std::function<void()> &work) {
    try {
        work();
    } catch (const std::exception &error) {
        ShowError(parent, error);
    }
}

void ShowNotice(QWidget *window, const Notice &notice) {
    QMessageBox(IconOf(notice.icon), window->windowTitle(), TextOf(notice.text), QMessageBox::Ok, window)
        .exec();
    if (QWidget *field = FieldOf(*window, notice)) {
        field->setFocus();
    }
}

} // namespace kelvaro
