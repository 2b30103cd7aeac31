#pragma once

#include "shell/views/HoroscopeView.h"

#include <QUrl>

namespace kelvaro {

class ServerPane;

/// A view with the two panes of the user's server, at its right and below it.
class ViewWithPanes : public QWidget {
public:
    /// Takes the view over. The pages come from the server at this address.
    ViewWithPanes(HoroscopeView *view, QUrl server);

    /// Fetches both pages anew; wanted each time the view is shown.
    void Navigate();

private:
    QUrl server_;
    ServerPane *right_;
    ServerPane *bottom_;
};

} // namespace kelvaro
