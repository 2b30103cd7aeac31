#include "shell/window/ViewArea.h"

#include "shell/views/ViewWithPanes.h"
#include "shell/widgets/ChartColours.h"

#include <utility>

namespace kelvaro {

namespace {

constexpr QSize leastSize(379, 346);

/// Gives the keys to the part of a view that had them last, or to its first that takes them; to the view
/// itself where none does.
void FocusInto(QWidget *view) {
    QWidget *part = view->focusWidget();
    if (part == nullptr) {
        part = view->nextInFocusChain();
        while (part != view && part->focusPolicy() == Qt::NoFocus) {
            part = part->nextInFocusChain();
        }
    }
    (view->isAncestorOf(part) ? part : view)->setFocus();
}

} // namespace

ViewArea::ViewArea(QUrl server) : server_(std::move(server)) {
    setPalette(ParchmentPalette());
    setAutoFillBackground(true);
    setMinimumSize(leastSize);
}

QWidget *ViewArea::ViewWindow::Whole() const {
    return panes != nullptr ? static_cast<QWidget *>(panes) : view;
}

ViewArea::ViewWindow ViewArea::NewWindow(const HoroscopeViewRow &row) {
    ViewWindow made;
    made.view = row.make();
    made.view->setObjectName(QString::fromLatin1(row.form));
    made.panes = server_.isValid() ? new ViewWithPanes(made.view, server_) : nullptr;
    made.Whole()->setParent(this);
    made.Whole()->setGeometry(rect());
    return made;
}

void ViewArea::HideViews() {
    for (ViewWindow &each : views_) {
        if (each.view != nullptr) {
            each.Whole()->hide();
            each.isStale = true;
        }
    }
}

void ViewArea::ShowView(std::size_t view, const Horoscope &horoscope) {
    ViewWindow &shown = views_.at(view);
    if (shown.view == nullptr) {
        shown = NewWindow(horoscopeViews.at(view));
    }
    if (shown.isStale) {
        shown.isStale = false;
        shown.view->Refresh(horoscope);
    }
    const QWidget *keys = window()->focusWidget();
    const bool areKeysElsewhere = keys != nullptr && !isAncestorOf(keys);
    for (const ViewWindow &each : views_) {
        if (each.view != nullptr) {
            each.Whole()->setVisible(&each == &shown);
        }
    }
    // The form that started a run has taken the keys of the window with it.
    activateWindow();
    if (!areKeysElsewhere) {
        FocusInto(shown.Whole());
    }
    if (shown.panes != nullptr) {
        shown.panes->Navigate();
    }
}

void ViewArea::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    const QList<QWidget *> made = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *view : made) {
        view->setGeometry(rect());
    }
}

} // namespace kelvaro
