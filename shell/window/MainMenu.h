#pragma once

#include <QKeySequence>
#include <QMenuBar>

#include <functional>
#include <vector>

namespace kelvaro {

/// An entry of a menu of the main window; a separator where it has no caption.
struct MenuEntry {
    const char *name = nullptr;    ///< object name of its action
    const char *caption = nullptr; ///< with its mnemonic
    std::function<void()> chosen{};
    QKeySequence keys{};
};

/// Adds a menu under the object name of its action, and returns that action.
QAction *AddMenu(QMenuBar *bar, const char *name, const char *caption, const std::vector<MenuEntry> &entries);

/// Adds an entry that stands in the bar itself.
QAction *AddTopEntry(QMenuBar *bar, const MenuEntry &entry);

} // namespace kelvaro
