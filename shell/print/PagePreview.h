#pragma once

#include "shell/print/PagesArea.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <memory>
#include <vector>

namespace kelvaro {

/// The preview of drawn pages, with its buttons above them. In all of its window, Ctrl with plus and minus
/// zooms and Ctrl with Page Up and Page Down turns the pages; with the focus in it, Ctrl+0 shows the size on
/// paper.
class PagePreview : public QWidget {
    Q_OBJECT

public:
    explicit PagePreview(QWidget *parent = nullptr);

    void Show(std::shared_ptr<const HoroscopePages> pages);

    PagesArea &Area() { return *area_; }

signals:
    /// "Print..." was pressed.
    void PrintWanted();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPushButton *NewButton(const char *name, const char *icon, const QString &text, const QString &keys);
    void AddKeys();
    void ShowState();
    void FitBar();
    void ShowWords(const std::vector<QPushButton *> &buttons, bool areShown);

    PagesArea *area_;
    QWidget *bar_;
    QLabel *zoom_;
    QLabel *place_;
    QPushButton *fitWidth_ = nullptr;
    QPushButton *wholePage_ = nullptr;
    QPushButton *zoomOut_ = nullptr;
    QPushButton *zoomIn_ = nullptr;
    QPushButton *pageUp_ = nullptr;
    QPushButton *pageDown_ = nullptr;
    QPushButton *print_ = nullptr;
};

} // namespace kelvaro
