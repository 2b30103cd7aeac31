#pragma once

#include "shell/help/HelpWindow.h"

#include <QPointer>

#include <functional>

namespace kelvaro {

/// The guide beside the window that asks for it. A modal dialog keeps the keys of the menus to itself; F1
/// opens the guide there, too.
class Help : public QObject {
public:
    /// `subject` names the chapter for what the main window shows; that of a dialog bears its title.
    Help(QWidget *mainWindow, std::function<QString()> subject);

    /// Brings the guide to the front, at the chapter of the window that is in front.
    void Show();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *mainWindow_;
    std::function<QString()> subject_;
    QPointer<HelpWindow> window_;
};

} // namespace kelvaro
