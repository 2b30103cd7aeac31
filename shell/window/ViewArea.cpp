#include "shell/window/ViewArea.h"

#include "shell/views/ViewWithPanes.h"
#include "shell/widgets/ChartColours.h"

#include <QCloseEvent>

namespace kelvaro {

namespace {

/// A window of the area without a frame. It takes up the whole area and stays, whatever key is pressed.
class FramelessSubWindow : public QMdiSubWindow {
public:
    explicit FramelessSubWindow(QWidget *view) : QMdiSubWindow(nullptr, Qt::FramelessWindowHint) {
        setWidget(view);
        setAttribute(Qt::WA_DeleteOnClose, false);
    }

protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

} // namespace

ViewArea::ViewArea(const QUrl &server) {
    setBackground(parchmentColour);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (std::size_t index = 0; index < horoscopeViews.size(); ++index) {
        HoroscopeView *view = horoscopeViews.at(index).make();
        view->setObjectName(QString::fromLatin1(horoscopeViews.at(index).form));
        ViewWithPanes *panes = server.isValid() ? new ViewWithPanes(view, server) : nullptr;
        auto *window = new FramelessSubWindow(panes != nullptr ? static_cast<QWidget *>(panes) : view);
        addSubWindow(window, window->windowFlags());
        window->hide();
        views_.at(index) = {view, window, panes, true};
    }
}

void ViewArea::HideViews() {
    for (ViewWindow &each : views_) {
        each.window->hide();
        each.isStale = true;
    }
}

void ViewArea::ShowView(std::size_t view, const Horoscope &horoscope) {
    ViewWindow &shown = views_.at(view);
    if (shown.isStale) {
        shown.isStale = false;
        shown.view->Refresh(horoscope);
    }
    for (ViewWindow &each : views_) {
        each.window->setVisible(&each == &shown);
    }
    shown.window->showMaximized();
    setActiveSubWindow(shown.window);
    if (shown.panes != nullptr) {
        shown.panes->Navigate();
    }
}

} // namespace kelvaro
