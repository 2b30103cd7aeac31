#include "shell/window/ViewArea.h"

#include "shell/views/ViewWithPanes.h"
#include "shell/widgets/ParchmentPalette.h"

#include <QVBoxLayout>

#include <utility>

namespace kelvaro {

namespace {

constexpr QSize leastSize(200, 150);

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
    setObjectName(QStringLiteral("views"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto *views = new QWidget;
    auto *layout = new QVBoxLayout(views); // what is hidden takes up no room in it
    layout->setContentsMargins(0, 0, 0, 0);
    setWidget(views);
}

QWidget *ViewArea::ViewWindow::Whole() const {
    return panes != nullptr ? static_cast<QWidget *>(panes) : view;
}

ViewArea::ViewWindow ViewArea::NewWindow(const HoroscopeViewRow &row) {
    ViewWindow made;
    made.view = row.make();
    made.view->setObjectName(QString::fromLatin1(row.form));
    made.panes = server_.isValid() ? new ViewWithPanes(made.view, server_) : nullptr;
    made.Whole()->hide();
    widget()->layout()->addWidget(made.Whole());
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
        if (each.view != nullptr && &each != &shown) {
            each.Whole()->hide();
        }
    }
    shown.Whole()->show();
    widget()->layout()->activate();
    ensureVisible(0, 0, 0, 0);
    // The form that started a run has taken the keys of the window with it.
    activateWindow();
    if (!areKeysElsewhere) {
        FocusInto(shown.Whole());
    }
    if (shown.panes != nullptr) {
        shown.panes->Navigate();
    }
}

} // namespace kelvaro
