#pragma once

#include <QDialog>
#include <QListWidget>
#include <QTextBrowser>

namespace kelvaro {

/// The user's guide: its headings at the left, its text beside them.
class HelpWindow : public QDialog {
public:
    explicit HelpWindow(QWidget *parent = nullptr);

    /// Scrolls to the first heading that names the subject; to the beginning where none does.
    void ShowSubject(const QString &subject);

private:
    void ListHeadings();
    void ScrollTo(int position);

    QListWidget *headings_;
    QTextBrowser *text_;
};

} // namespace kelvaro
