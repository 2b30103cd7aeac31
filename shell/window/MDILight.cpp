#include "shell/window/MDILight.h"

#include "horoscope/CalculateHoroscope.h"
#include "horoscope/entry/LastChart.h"
#include "horoscope/entry/PreferencesEntry.h"
#include "shell/dialogs/BirthDialog.h"
#include "shell/dialogs/CityDialog.h"
#include "shell/dialogs/CountryDialog.h"
#include "shell/dialogs/PersonalInfoDialog.h"
#include "shell/dialogs/PreferencesDialog.h"
#include "shell/dialogs/TimeConverterDialog.h"
#include "shell/dialogs/TimeZoneDialog.h"
#include "shell/help/AboutBox.h"
#include "shell/help/HelpWindow.h"
#include "shell/views/ServerPane.h"
#include "shell/widgets/ChartColours.h"
#include "shell/widgets/MessageBoxes.h"
#include "shell/widgets/TextOf.h"
#include "shell/window/HoroscopeViews.h"
#include "shell/window/MainHoroscope.h"
#include "shell/window/MainMenu.h"
#include "shell/window/StatusPanel.h"
#include "shell/window/ViewArea.h"
#include "store/database/DatabaseFile.h"
#include "store/masters/PersonalDetails.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>

#include <algorithm>
#include <array>

namespace kelvaro {

namespace {

constexpr int treeWidth = 190;
constexpr int splitterWidth = 5;
constexpr const char *geometryKey = "Window/Geometry";
constexpr const char *serverKey = "Server/Address";

/// The windows of the program in the order in which its end unloads them.
constexpr std::array<const char *, 18> unloadOrder{
    "frm_UserDetails",   "frm_rasi",        "frm_BhavaChart",
    "frm_Navamsa",       "frm_CBhava",      "Frm_PP",
    "Frm_Vargas",        "Frm_AVargas",     "Frm_Dasa",
    "Frm_Print",         "frm_Add_Country", "frm_New_LatLon",
    "frm_AddTimeZone",   "frm_Details",     "frm_IshtaghatikaToBirthTime",
    "frm_MainHoroscope", "frm_Preferences", "Frm_RetriveBirthData"};

/// The place of a view among the views; the first for an empty or unknown name.
std::size_t ViewNamed(std::string_view name) {
    const auto row = std::ranges::find(horoscopeViews, name, &HoroscopeViewRow::viewName);
    return row == horoscopeViews.end() ? 0 : static_cast<std::size_t>(row - horoscopeViews.begin());
}

} // namespace

MDILight::MDILight(const QString &settingsFile)
    : settings_(settingsFile.isEmpty() ? QSettings() : QSettings(settingsFile, QSettings::IniFormat)),
      lastChart_(settingsFile), horoscope_(connection_, *this),
      views_(new ViewArea(ServerAddress(settings_.value(serverKey).toString()))), tree_(new MainHoroscope),
      owner_(new QLabel) {
    setObjectName(QStringLiteral("MDILight"));
    setWindowTitle(QStringLiteral("Kelvaro - Kelvaro Basic (Version 2.4)"));

    auto *splitter = new QSplitter;
    splitter->addWidget(tree_);
    splitter->addWidget(views_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({treeWidth, width()});
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(splitterWidth);
    QPalette colours = splitter->palette();
    colours.setColor(QPalette::Window, parchmentColour.darker(112));
    splitter->setPalette(colours);
    splitter->setAutoFillBackground(true);
    setCentralWidget(splitter);
    panel_ = new StatusPanel(this);

    BuildMenu();
    FnDisable();
    BuildShortcuts();
    owner_->setContentsMargins(splitterWidth, 0, splitterWidth, 0);
    statusBar()->addPermanentWidget(owner_);
    connect(tree_, &MainHoroscope::ViewChosen, this, &MDILight::ChooseView);
    RestoreWindowPlace();
    qApp->installEventFilter(this);
}

MDILight::~MDILight() {
    for (const char *name : unloadOrder) {
        delete findChild<QWidget *>(QString::fromLatin1(name));
    }
    delete birthForm_;
}

void MDILight::Start(const std::filesystem::path &programFolder, const std::filesystem::path &userFolder) {
    try {
        connection_.Open(store::FindDatabaseFile(programFolder, userFolder));
        store::OnLoadClass preferences;
        preferences.ClsPath = programFolder.string();
        preferences.FnPreferences(connection_);
        PutPreferencesInForce(preferences, horoscope_.state);
        ReadLetterhead();
        FNInitialize();
        FnEnable();
        // A database that cannot be written would otherwise be told only when something is to be saved.
        connection_.RequireWritable();
    } catch (const std::exception &error) {
        ShowError(this, error);
    }
}

void MDILight::ReadLetterhead() {
    const store::PersonalDetails stored = store::ReadPersonalDetails(connection_);
    Str_CompName = TextOf(stored.Name);
    Str_CompAddress = TextOf(stored.Address);
    Str_CompAddress2 = TextOf(stored.Address2);
    Str_CompCity = TextOf(stored.City);
    Str_CompCountry = TextOf(stored.Country);
    Str_CompZipcode = TextOf(stored.Zipcode);
    Str_CompPhone = TextOf(stored.Phone);
    Str_CompEMail = TextOf(stored.EMail);
    owner_->setText(Str_CompName);
}

/// The first horoscope is that of the chart that was saved last, or of the sample.
void MDILight::FNInitialize() {
    const std::string remark = RestoreLastChart(lastChart_, horoscope_.state);
    Calculate();
    if (!remark.empty() && statusBar()->currentMessage().isEmpty()) {
        statusBar()->showMessage(TextOf(remark));
    }
}

void MDILight::Calculate() {
    CalculateHoroscope(horoscope_);
}

void MDILight::EnableMenus(bool areEnabled) {
    for (const char *name : {"mnuBirthTime", "mnuTools", "mnuBirthDetails"}) {
        findChild<QAction *>(QString::fromLatin1(name))->setEnabled(areEnabled);
    }
}

void MDILight::BuildMenu() {
    AddTopEntry(menuBar(),
                {"mnuBirthDetails", "&Enter Birth Details", [this] { Guard([this] { ShownBirthForm(); }); }});
    AddMenu(menuBar(), "mnuTools", "&Tools",
            {{"mDI_Country", "&Country Master", [this] { ShowModally<CountryDialog>(connection_); }},
             {"MDI_LAt_Lon", "Cit&y Master", [this] { ShowModally<CityDialog>(connection_); }},
             {"MDI_ADD_TimeZone", "Time &Zone Master", [this] { ShowModally<TimeZoneDialog>(connection_); }},
             {},
             {"mnudetails", "Edit Personal &Info", [this] { ShowModally<PersonalInfoDialog>(connection_); }},
             {"mnuPreferences", "&Preferences", [this] { ShowModally<PreferencesDialog>(horoscope_); }}});
    AddMenu(menuBar(), "mnuBirthTime", "&Time Converter",
            {{"Mnu_IshtaGhatika", "&BirthTime To  IshtaGhatika",
              [this] { ShowModally<IshtaGhatiDialog>(horoscope_); }},
             {},
             {"mnu_BirthTime", "Ishta&Ghatika To BirthTime",
              [this] { ShowModally<BirthTimeDialog>(horoscope_); }}});
    AddMenu(menuBar(), "mdiHelpmnu", "Help",
            {{"mnuHelp", "&Help", [this] { ShowHelp(); }, QKeySequence::HelpContents},
             {},
             {"mnuAboutus", "&About Us", [this] { AboutBox(this).exec(); }},
             {"mnuExit", "E&xit", [this] { close(); }, QKeySequence::Quit}});
}

/// The keys that users of desktop programs expect; the menus have no entries for them.
void MDILight::BuildShortcuts() {
    const auto onKeys = [this](const QKeySequence &keys, auto chosen) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, chosen] { Guard(chosen); });
    };
    onKeys(QKeySequence::New, [this] {
        // "New" on a form that holds a saved chart would go on to change that chart.
        if (birthForm_ != nullptr) {
            ForgetBirthForm();
        }
        ShownBirthForm().New();
    });
    onKeys(QKeySequence::Open, [this] { ShownBirthForm().OpenList(); });
    onKeys(QKeySequence::Save, [this] {
        const bool isStated = birthForm_ != nullptr;
        BirthDialog &form = ShownBirthForm();
        if (isStated) {
            form.Save();
        }
    });
    onKeys(QKeySequence::Print, [this] {
        ChooseView(ViewNamed("Print"));
        findChild<QPushButton *>(QStringLiteral("CoPrt"))->setFocus();
    });
    for (std::size_t view = 0; view < horoscopeViews.size(); ++view) {
        const auto digit = static_cast<int>((view + 1) % horoscopeViews.size());
        onKeys(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + digit)),
               [this, view] { ChooseView(view); });
    }
}

/// Where the window stood at its last end; the whole screen at first.
void MDILight::RestoreWindowPlace() {
    if (!restoreGeometry(settings_.value(geometryKey).toByteArray())) {
        setGeometry(screen()->availableGeometry());
        setWindowState(Qt::WindowMaximized);
    }
}

void MDILight::ChooseView(std::size_t view) {
    horoscope_.CurrentView = horoscopeViews.at(view).viewName;
    // A run shows the view that was chosen last when it comes to its end.
    if (!horoscope_.isCalculating) {
        ShowCurrentView(horoscope_.CurrentView);
    }
}

/// The form of birth details in front: as it was hidden by the last run, or a new one.
BirthDialog &MDILight::ShownBirthForm() {
    if (birthForm_ != nullptr) {
        birthForm_->ReturnFromMaster();
        return *birthForm_;
    }
    birthForm_ = new BirthDialog(horoscope_, lastChart_, this);
    birthForm_->setModal(true);
    connect(birthForm_, &BirthDialog::CityMasterWanted, this, &MDILight::ShowMasterForBirthForm<CityDialog>);
    connect(birthForm_, &BirthDialog::TimeZoneMasterWanted, this,
            &MDILight::ShowMasterForBirthForm<TimeZoneDialog>);
    connect(birthForm_, &BirthDialog::Closed, this, &MDILight::ForgetBirthForm);
    birthForm_->show();
    return *birthForm_;
}

void MDILight::ForgetBirthForm() {
    birthForm_->deleteLater();
    birthForm_ = nullptr;
    findChild<QAction *>(QStringLiteral("mnuPreferences"))->setEnabled(true);
}

/// Does some work, but not in the middle of a run, and shows the error that breaks it off.
void MDILight::Guard(const std::function<void()> &work) {
    if (!connection_.IsOpen() || horoscope_.isCalculating) {
        return;
    }
    Guarded(this, work);
}

template <class Dialog, class Subject> void MDILight::ShowModally(Subject &subject) {
    Guard([this, &subject] { Dialog(subject, this).exec(); });
}

template <class Master> void MDILight::ShowMasterForBirthForm() {
    ShowModally<Master>(connection_);
    Guard([this] { birthForm_->ReturnFromMaster(); });
}

/// The guide in front, at the chapter of the dialog or the view that is in front.
void MDILight::ShowHelp() {
    QWidget *asking = QApplication::activeModalWidget() != nullptr ? QApplication::activeModalWidget() : this;
    if (help_ != nullptr && help_->parentWidget() != asking) {
        help_->setParent(nullptr);
        help_->deleteLater();
        help_ = nullptr;
    }
    if (help_ == nullptr) {
        // As a child of a modal dialog it can be read while the dialog is open.
        help_ = new HelpWindow(asking);
    }
    help_->show();
    help_->ShowSubject(asking == this
                           ? QString::fromLatin1(horoscopeViews.at(ViewNamed(horoscope_.CurrentView)).text)
                           : asking->windowTitle());
    help_->raise();
    help_->activateWindow();
}

/// A modal dialog keeps the keys of the menus to itself; F1 is wanted there, too.
bool MDILight::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress && QApplication::activeModalWidget() != nullptr &&
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::HelpContents)) { // NOLINT
        ShowHelp();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void MDILight::OpenStatus() {
    statusBar()->clearMessage();
    panel_->Open(centralWidget()->geometry());
}

void MDILight::AdvanceStatusBar() {
    panel_->Advance();
}

void MDILight::CloseStatus() {
    panel_->Close();
    if (isCloseWanted_) {
        // When the run that is about to end has ended.
        QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection);
    }
}

void MDILight::HideHoroscopeForms() {
    views_->HideViews();
}

void MDILight::HideOpenChart() {
    if (birthForm_ != nullptr) {
        birthForm_->hide();
    }
}

void MDILight::ShowCurrentView(std::string_view currentView) {
    const std::size_t shown = ViewNamed(currentView);
    views_->ShowView(shown, horoscope_);
    tree_->MarkView(shown);
}

void MDILight::RunFailed(std::string_view step, std::string_view cause) {
    statusBar()->showMessage(QStringLiteral("%1: %2").arg(TextOf(step), TextOf(cause)));
}

void MDILight::closeEvent(QCloseEvent *event) {
    // A run must come to its end before what it works on goes away.
    isCloseWanted_ = horoscope_.isCalculating;
    event->setAccepted(!isCloseWanted_);
    if (event->isAccepted()) {
        settings_.setValue(geometryKey, saveGeometry());
    }
}

void MDILight::resizeEvent(QResizeEvent *event) {
    QMainWindow::resizeEvent(event);
    if (panel_->isVisible()) {
        panel_->Span(centralWidget()->geometry());
    }
}

} // namespace kelvaro
