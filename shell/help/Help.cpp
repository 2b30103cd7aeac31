#include "shell/help/Help.h"

#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace kelvaro {

Help::Help(QWidget *mainWindow, std::function<QString()> subject)
    : mainWindow_(mainWindow), subject_(std::move(subject)) {
    qApp->installEventFilter(this);
}

void Help::Show() {
    QWidget *asking = QApplication::activeModalWidget();
    const QString subject = asking != nullptr ? asking->windowTitle() : subject_();
    if (asking == nullptr) {
        asking = mainWindow_;
    }
    if (window_ != nullptr && window_->parentWidget() != asking) {
        window_->setParent(nullptr);
        window_->deleteLater();
        window_ = nullptr;
    }
    if (window_ == nullptr) {
        // As a child of a modal dialog it can be read while the dialog is open.
        window_ = new HelpWindow(asking);
    }
    window_->show();
    window_->ShowSubject(subject);
    window_->raise();
    window_->activateWindow();
}

bool Help::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress && QApplication::activeModalWidget() != nullptr &&
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::HelpContents)) { // NOLINT
        Show();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kelvaro
