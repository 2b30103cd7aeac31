#include "shell/window/MainMenu.h"

#include "shell/dialogs/CityDialog.h"
#include "shell/dialogs/ClockSurveyDialog.h"
#include "shell/dialogs/CountryDialog.h"
#include "shell/dialogs/PersonalInfoDialog.h"
#include "shell/dialogs/PreferencesDialog.h"
#include "shell/dialogs/TimeConverterDialog.h"
#include "shell/dialogs/TimeZoneDialog.h"
#include "shell/help/AboutBox.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/window/HoroscopeViews.h"
#include "shell/window/MDILight.h"

#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>

#include <functional>
#include <vector>

namespace kelvaro {

namespace {

/// An entry of a menu; a separator where it has no caption.
struct MenuEntry {
    const char *name = nullptr;    ///< object name of its action
    const char *caption = nullptr; ///< with its mnemonic
    const char *icon = nullptr;    ///< none in the bar itself, which would show it in place of the caption
    std::function<void()> chosen{};
    QKeySequence keys{};
};

QAction *ActionOf(const MenuEntry &entry, QObject *parent) {
    auto *action = new QAction(QString::fromLatin1(entry.caption), parent);
    action->setObjectName(QString::fromLatin1(entry.name));
    if (entry.icon != nullptr) {
        action->setIcon(HouseIcon(entry.icon));
    }
    action->setShortcut(entry.keys);
    QObject::connect(action, &QAction::triggered, parent, entry.chosen);
    return action;
}

/// Adds a menu under the object name of its action.
void AddMenu(QMenuBar *bar, const char *name, const char *caption, const std::vector<MenuEntry> &entries) {
    QMenu *menu = bar->addMenu(QString::fromLatin1(caption));
    menu->menuAction()->setObjectName(QString::fromLatin1(name));
    for (const MenuEntry &entry : entries) {
        if (entry.caption == nullptr) {
            menu->addSeparator();
        } else {
            menu->addAction(ActionOf(entry, menu));
        }
    }
}

} // namespace

MainMenu::MainMenu(MDILight &window, SettingsStore &settings)
    : window_(window), birthForm_(window, settings), help_(&window, [&window] {
          return QString::fromLatin1(horoscopeViews.at(window.ViewInForce()).text);
      }) {
    BuildMenu();
    BuildShortcuts();
}

void MainMenu::Enable(bool areEnabled) {
    for (const char *name : {"mnuBirthTime", "mnuTools", "mnuBirthDetails"}) {
        window_.findChild<QAction *>(QString::fromLatin1(name))->setEnabled(areEnabled);
    }
    for (QShortcut *keys : databaseKeys_) {
        keys->setEnabled(areEnabled);
    }
}

/// What an entry does that opens a dialog.
template <class Dialog, class Subject> std::function<void()> MainMenu::Opens(Subject &subject) {
    return [this, &subject] { window_.Guard([this, &subject] { Dialog(subject, &window_).exec(); }); };
}

void MainMenu::BuildMenu() {
    QMenuBar *bar = window_.menuBar();
    Horoscope &horoscope = window_.HoroscopeInForce();
    store::Connection &connection = horoscope.connection;
    bar->addAction(ActionOf({"mnuBirthDetails", "&Enter Birth Details", nullptr,
                             [this] { window_.Guard([this] { birthForm_.Show(); }); }},
                            bar));
    AddMenu(bar, "mnuTools", "&Tools",
            {{"mDI_Country", "&Country Master", "country", Opens<CountryDialog>(connection)},
             {"MDI_LAt_Lon", "Cit&y Master", "city", Opens<CityDialog>(connection)},
             {"MDI_ADD_TimeZone", "Time &Zone Master", "zone", Opens<TimeZoneDialog>(connection)},
             {},
             {"mnudetails", "Edit Personal &Info", "person", Opens<PersonalInfoDialog>(connection)},
             {"mnuPreferences", "&Preferences", "preferences", Opens<PreferencesDialog>(horoscope)},
             {},
             {"mnuClockSurvey", "Check Time Zones of &Saved Charts...", "find",
              [this] { window_.Guard([this] { CheckZonesOfCharts(); }); }}});
    AddMenu(
        bar, "mnuBirthTime", "&Time Converter",
        {{"Mnu_IshtaGhatika", "&BirthTime To  IshtaGhatika", "ghati", Opens<IshtaGhatiDialog>(horoscope)},
         {},
         {"mnu_BirthTime", "Ishta&Ghatika To BirthTime", "clock-time", Opens<BirthTimeDialog>(horoscope)}});
    AddMenu(bar, "mdiHelpmnu", "Help",
            {{"mnuHelp", "&Help", "help", [this] { help_.Show(); }, QKeySequence::HelpContents},
             {},
             {"mnuAboutus", "&About Us", "about", [this] { AboutBox(&window_).exec(); }},
             {"mnuExit", "E&xit", "exit", [this] { window_.close(); }, QKeySequence(Qt::CTRL | Qt::Key_Q)}});
}

/// The keys that users of desktop programs expect; the menus have no entries for them.
void MainMenu::BuildShortcuts() {
    const auto onKeys = [this](const QKeySequence &keys, auto chosen) {
        auto *shortcut = new QShortcut(keys, &window_);
        QObject::connect(shortcut, &QShortcut::activated, &window_, chosen);
        return shortcut;
    };
    const auto forDatabase = [this, onKeys](const QKeySequence &keys, auto chosen) {
        databaseKeys_.push_back(onKeys(keys, [this, chosen] { window_.Guard(chosen); }));
    };
    forDatabase(QKeySequence::New, [this] { NewBirth(); });
    forDatabase(QKeySequence::Open, [this] { birthForm_.Show().OpenList(); });
    forDatabase(QKeySequence::Save, [this] { SaveBirth(); });
    onKeys(QKeySequence::Print, [this] { Print(); });
    for (std::size_t view = 0; view < horoscopeViews.size(); ++view) {
        const auto digit = static_cast<int>((view + 1) % horoscopeViews.size());
        onKeys(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + digit)),
               [this, view] { window_.ChooseView(view); });
    }
}

void MainMenu::NewBirth() {
    // "New" on a form that holds a saved chart would go on to change that chart.
    birthForm_.Close();
    birthForm_.Show().New();
}

void MainMenu::SaveBirth() {
    const bool isStated = birthForm_.Exists();
    BirthDialog &form = birthForm_.Show();
    if (isStated) {
        form.Save();
    }
}

void MainMenu::CheckZonesOfCharts() {
    ClockSurveyDialog survey(window_.HoroscopeInForce().connection, &window_);
    survey.exec();
    if (const store::ListItem *chart = survey.Chosen()) {
        birthForm_.Show().OpenChart(*chart);
    }
}

void MainMenu::Print() {
    window_.ChooseView(ViewNamed("Print"));
    // In the middle of a run the view comes at its end.
    if (auto *print = window_.findChild<QPushButton *>(QStringLiteral("CoPrt"))) {
        print->setFocus();
    }
}

} // namespace kelvaro
