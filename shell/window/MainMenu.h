#pragma once

#include "shell/help/Help.h"
#include "shell/window/BirthForm.h"

#include <vector>

class QShortcut;

namespace kelvaro {

/// The menus and the keys of the main window, and the windows that they open.
class MainMenu {
public:
    /// Window and settings must outlive the object.
    MainMenu(MDILight &window, SettingsStore &settings);

    /// Enables or disables the menus that need a database, and the keys with them.
    void Enable(bool areEnabled);

    void HideBirthForm() { birthForm_.Hide(); }

private:
    void BuildMenu();
    void BuildShortcuts();
    void NewBirth();
    void SaveBirth();
    void Print();
    void CheckZonesOfCharts();
    template <class Dialog, class Subject> std::function<void()> Opens(Subject &subject);

    MDILight &window_;
    BirthForm birthForm_;
    Help help_;
    std::vector<QShortcut *> databaseKeys_; ///< those that need a database
};

} // namespace kelvaro
