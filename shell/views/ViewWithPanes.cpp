#include "shell/views/ViewWithPanes.h"

#include "shell/views/ServerPane.h"

#include <QSplitter>
#include <QVBoxLayout>

#include <utility>

namespace kelvaro {

namespace {

constexpr int viewShare = 4; // of the room, where a pane has one

QUrl PageOf(const QUrl &server, const QString &path) {
    QUrl page = server;
    QString folder = server.path();
    while (folder.endsWith(u'/')) {
        folder.chop(1);
    }
    page.setPath(folder + path);
    return page;
}

QSplitter *Divide(Qt::Orientation direction, QWidget *view, QWidget *pane) {
    auto *splitter = new QSplitter(direction);
    splitter->addWidget(view);
    splitter->addWidget(pane);
    splitter->setStretchFactor(0, viewShare);
    splitter->setStretchFactor(1, 1);
    splitter->setCollapsible(0, false);
    return splitter;
}

} // namespace

ViewWithPanes::ViewWithPanes(HoroscopeView *view, QUrl server)
    : server_(std::move(server)),
      right_(new ServerPane(QStringLiteral("WebMirvaneAdds_Right"), QStringLiteral("cmdMaximize1"))),
      bottom_(new ServerPane(QStringLiteral("WebMirvaneAdds_Bottom"), QStringLiteral("cmdMaximize2"))) {
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Divide(Qt::Vertical, Divide(Qt::Horizontal, view, right_), bottom_));
}

void ViewWithPanes::Navigate() {
    right_->Navigate(PageOf(server_, QStringLiteral("/Downloads/MirvaneAdds_Right.asp")));
    bottom_->Navigate(PageOf(server_, QStringLiteral("/Downloads/MirvaneAdds_Bottom.asp")));
}

} // namespace kelvaro
