#pragma once

#include "shell/window/HoroscopeViews.h"

#include <QScrollArea>
#include <QUrl>

#include <array>
#include <cstddef>

namespace kelvaro {

class ViewWithPanes;

/// The part of the main window where the views stand, one of them shown at a time and over the whole area. A
/// view that has no use for so little room is scrolled.
class ViewArea : public QScrollArea {
public:
    /// The views have the panes of a server where its address is valid.
    explicit ViewArea(QUrl server);

    /// Hides all views. What they show is stale from then on.
    void HideViews();

    /// Shows a view alone, and fills it where it is stale. It is made when it is shown for the first time.
    /// It has the keys from now on, unless a part of the window beside the area has them.
    void ShowView(std::size_t view, const Horoscope &horoscope);

private:
    struct ViewWindow {
        HoroscopeView *view = nullptr;  ///< none before it is shown
        ViewWithPanes *panes = nullptr; ///< none where no server is configured
        bool isStale = true;            ///< not filled since the last run

        QWidget *Whole() const;
    };

    ViewWindow NewWindow(const HoroscopeViewRow &row);

    QUrl server_;
    std::array<ViewWindow, horoscopeViews.size()> views_;
};

} // namespace kelvaro
