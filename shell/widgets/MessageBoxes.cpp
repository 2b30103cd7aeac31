#include "shell/widgets/MessageBoxes.h"

#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "shell/widgets/HouseIcon.h"

#include <QAbstractButton>
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

/// Shows a message box. A message says what it says: nothing in it is markup.
int Show(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
         QMessageBox::StandardButtons buttons = QMessageBox::Ok,
         QMessageBox::StandardButton usual = QMessageBox::NoButton) {
    QMessageBox box(icon, title, QString(), buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(MessageText(text));
    box.setDefaultButton(usual);
    for (QAbstractButton *button : box.buttons()) {
        button->setIcon(HouseIcon(box.standardButton(button) == QMessageBox::No ? "close" : "accept"));
    }
    return box.exec();
}

} // namespace

QWidget *FieldOf(const QWidget &window, const Notice &notice) {
    return notice.focus.empty() ? nullptr : window.findChild<QWidget *>(TextOf(notice.focus));
}

void ShowError(QWidget *parent, const std::exception &error) {
    Show(parent, QMessageBox::Critical, QString(), QString::fromUtf8(error.what()));
}

void Guarded(QWidget *parent, const std::function<void()> &work) {
    try {
        work();
    } catch (const std::exception &error) {
        ShowError(parent, error);
    }
}

void ShowNotice(QWidget *window, const Notice &notice) {
    Show(window, IconOf(notice.icon), window->windowTitle(), TextOf(notice.text));
    if (QWidget *field = FieldOf(*window, notice)) {
        field->setFocus();
    }
}

bool IsConfirmed(QWidget *window, const QString &title, const QString &question) {
    return Show(window, QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No,
                QMessageBox::No) == QMessageBox::Yes;
}

} // namespace kelvaro
