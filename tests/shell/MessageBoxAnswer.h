#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace kelvaro {

/// Answers message boxes with Enter while it lives, and keeps what the last one said.
class MessageBoxAnswer : public QObject {
public:
    MessageBoxAnswer() {
        timer_.callOnTimeout(this, [this] { Answer(); });
        timer_.start(10);
    }

    int Count() const { return count_; }
    QString Title() const { return title_; }
    QString Text() const { return text_; }
    QMessageBox::Icon Icon() const { return icon_; }

private:
    void Answer() {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible()) {
            return;
        }
        ++count_;
        title_ = box->windowTitle();
        text_ = box->text();
        icon_ = box->icon();
        box->accept();
    }

    QTimer timer_;
    int count_ = 0;
    QString title_;
    QString text_;
    QMessageBox::Icon icon_ = QMessageBox::NoIcon;
};

} // namespace kelvaro
