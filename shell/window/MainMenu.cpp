#include "shell/window/MainMenu.h"

#include <QMenu>

namespace kelvaro {

namespace {

QAction *ActionOf(const MenuEntry &entry, QObject *parent) {
    auto *action = new QAction(QString::fromLatin1(entry.caption), parent);
    action->setObjectName(QString::fromLatin1(entry.name));
    action->setShortcut(entry.keys);
    QObject::connect(action, &QAction::triggered, parent, entry.chosen);
    return action;
}

} // namespace

QAction *AddMenu(QMenuBar *bar, const char *name, const char *caption,
                 const std::vector<MenuEntry> &entries) {
    QMenu *menu = bar->addMenu(QString::fromLatin1(caption));
    menu->menuAction()->setObjectName(QString::fromLatin1(name));
    for (const MenuEntry &entry : entries) {
        if (entry.caption == nullptr) {
            menu->addSeparator();
        } else {
            menu->addAction(ActionOf(entry, menu));
        }
    }
    return menu->menuAction();
}

QAction *AddTopEntry(QMenuBar *bar, const MenuEntry &entry) {
    QAction *action = ActionOf(entry, bar);
    bar->addAction(action);
    return action;
}

} // namespace kelvaro
