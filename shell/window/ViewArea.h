#pragma once

#include "shell/window/HoroscopeViews.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QUrl>

#include <array>
#include <cstddef>

namespace kelvaro {

class ViewWithPanes;

/// The part of the main window where the views stand, one of them shown at a time and over the whole area.
class ViewArea : public QMdiArea {
public:
    /// Makes all views; with the panes of a server where its address is valid.
    explicit ViewArea(const QUrl &server);

    /// Hides all views. What they show is stale from then on.
    void HideViews();

    /// Shows a view alone, and fills it where it is stale.
    void ShowView(std::size_t view, const Horoscope &horoscope);

private:
    struct ViewWindow {
        HoroscopeView *view = nullptr;
        QMdiSubWindow *window = nullptr;
        ViewWithPanes *panes = nullptr; ///< none where no server is configured
        bool isStale = true;            ///< not filled since the last run
    };

    std::array<ViewWindow, horoscopeViews.size()> views_;
};

} // namespace kelvaro
