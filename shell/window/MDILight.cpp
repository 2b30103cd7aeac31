#include "shell/window/MDILight.h"

#include "drawing/ChartColours.h"
#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "horoscope/CalculateHoroscope.h"
#include "horoscope/entry/LastChart.h"
#include "horoscope/entry/PreferencesEntry.h"
#include "runtime/Paths.h"
#include "shell/views/ServerPane.h"
#include "shell/widgets/MessageBoxes.h"
#include "shell/widgets/ParchmentPalette.h"
#include "shell/window/MainHoroscope.h"
#include "shell/window/StatusPanel.h"
#include "shell/window/ViewArea.h"
#include "store/database/DatabaseFile.h"
#include "store/masters/CityZones.h"
#include "store/masters/PersonalDetails.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>

#include <algorithm>
#include <array>
#include <optional>

namespace kelvaro {

namespace {

constexpr int treeWidth = 190;
constexpr int splitterWidth = 5;
constexpr qsizetype widestOwner = 60; // characters
constexpr const char *geometryKey = "Window/Geometry";
constexpr const char *serverKey = "Server/Address";

/// The windows of the program in the order in which its end unloads them. The birth form takes the list of
/// saved charts with it, which is its own.
constexpr std::array<const char *, 18> unloadOrder{
    "frm_UserDetails",   "frm_rasi",        "frm_BhavaChart",
    "frm_Navamsa",       "frm_CBhava",      "Frm_PP",
    "Frm_Vargas",        "Frm_AVargas",     "Frm_Dasa",
    "Frm_Print",         "frm_Add_Country", "frm_New_LatLon",
    "frm_AddTimeZone",   "frm_Details",     "frm_IshtaghatikaToBirthTime",
    "frm_MainHoroscope", "frm_Preferences", "frm_OpenChart"};

/// The place of a window, moved and made smaller as far as it takes to lie on a screen; all of the screen
/// where it is no place at all.
QRect BroughtOnto(const QRect &screen, const QRect &place) {
    if (!place.isValid()) {
        return screen;
    }
    const QSize size = place.size().boundedTo(screen.size());
    const QPoint lastCorner = screen.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    return {{std::clamp(place.left(), screen.left(), lastCorner.x()),
             std::clamp(place.top(), screen.top(), lastCorner.y())},
            size};
}

} // namespace

MDILight::MDILight(const QString &settingsFile)
    : lastChart_(settingsFile),
      settings_(settingsFile.isEmpty() ? QSettings() : QSettings(settingsFile, QSettings::IniFormat)),
      horoscope_(connection_, *this),
      views_(new ViewArea(ServerAddress(settings_.value(serverKey).toString()))), tree_(new MainHoroscope),
      owner_(new QLabel), menu_(*this, lastChart_) {
    setObjectName(QStringLiteral("MDILight"));
    setWindowTitle(QStringLiteral("Kelvaro - Kelvaro Basic (Version 2.4)"));

    auto *splitter = new QSplitter;
    splitter->addWidget(tree_);
    splitter->addWidget(views_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({treeWidth, width()});
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(splitterWidth);
    QPalette colours = ParchmentPalette();
    colours.setColor(QPalette::Window, parchmentColour.darker(112));
    splitter->setPalette(colours);
    splitter->setAutoFillBackground(true);
    setCentralWidget(splitter);
    panel_ = new StatusPanel(this);

    FnDisable();
    owner_->setTextFormat(Qt::PlainText);
    owner_->setContentsMargins(splitterWidth, 0, splitterWidth, 0);
    statusBar()->addPermanentWidget(owner_);
    // A bar too short for a message shows all of it under the mouse.
    connect(statusBar(), &QStatusBar::messageChanged, this, [this](const QString &message) {
        statusBar()->setToolTip(ToolTipText(message));
        MakeRoomForMessage();
    });
    connection_.OnRowsLeftOut(
        [this](const std::string &remark) { statusBar()->showMessage(OneLine(TextOf(remark))); });
    connect(tree_, &MainHoroscope::ViewChosen, this, &MDILight::ChooseView);
    RestoreWindowPlace();
}

MDILight::~MDILight() {
    for (const char *name : unloadOrder) {
        delete findChild<QWidget *>(QString::fromLatin1(name));
    }
}

void MDILight::Start(const std::filesystem::path &programFolder, const std::filesystem::path &userFolder) {
    try {
        connection_.Open(store::FindDatabaseFile(programFolder, userFolder));
        store::OnLoadClass preferences;
        preferences.ClsPath = TextOfPath(programFolder);
        preferences.FnPreferences(connection_);
        PutPreferencesInForce(preferences, horoscope_.state);
        ReadLetterhead();
        ShowFirstHoroscope();
        // A database that cannot be written would otherwise be told only when something is to be saved.
        connection_.RequireWritable();
        store::CityZones(connection_).BringFrom(programFolder / store::databaseFileName);
    } catch (const std::exception &error) {
        startFault_ = error.what();
        ShowError(this, error);
        // Why menus are off stays in sight.
        statusBar()->showMessage(OneLine(TextOf(startFault_)));
    }
}

/// The window is seen as it will stand before what the run wrote is on the disk, which takes as long as all
/// of the run.
void MDILight::ShowFirstHoroscope() {
    std::optional<store::Transaction> written;
    try {
        written.emplace(connection_);
    } catch (const store::StoreError &) {
        // The horoscope can be seen all the same; what is wrong is told after it.
    }
    FNInitialize();
    FnEnable();
    QGuiApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (written) {
        written->Commit();
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
    owner_->setText(OneLine(Str_CompName, widestOwner));
    owner_->setToolTip(ToolTipText(Str_CompName));
}

/// The first horoscope is that of the chart that was saved last, or of the sample.
void MDILight::FNInitialize() {
    const std::string remark = RestoreLastChart(lastChart_, horoscope_.state);
    Calculate();
    if (!remark.empty() && statusBar()->currentMessage().isEmpty()) {
        statusBar()->showMessage(OneLine(TextOf(remark)));
    }
}

void MDILight::Calculate() {
    CalculateHoroscope(horoscope_);
}

/// Where the window stood at its last end; the whole screen at first. Screens may have gone since then.
void MDILight::RestoreWindowPlace() {
    const bool isKnown = restoreGeometry(settings_.value(geometryKey).toByteArray());
    const bool isMaximized = !isKnown || (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0;
    const QRect place = isKnown ? normalGeometry() : QRect();
    setWindowState(Qt::WindowNoState);
    const QScreen *nearest = QGuiApplication::screenAt(place.center());
    setGeometry(BroughtOnto((nearest != nullptr ? nearest : screen())->availableGeometry(), place));
    if (isMaximized) {
        setWindowState(Qt::WindowMaximized);
    }
}

std::size_t MDILight::ViewInForce() const {
    return ViewNamed(horoscope_.CurrentView);
}

void MDILight::ChooseView(std::size_t view) {
    horoscope_.CurrentView = horoscopeViews.at(view).viewName;
    // A run shows the view that was chosen last when it comes to its end.
    if (!horoscope_.isCalculating) {
        ShowCurrentView(horoscope_.CurrentView);
    }
}

void MDILight::Guard(const std::function<void()> &work) {
    if (horoscope_.isCalculating) {
        return;
    }
    Guarded(this, [this, &work] {
        if (!connection_.IsOpen()) {
            throw store::StoreError("There is no database to work with. The start has failed:\n\n" +
                                    startFault_ + "\n\nMend that and start the program again.");
        }
        work();
    });
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
    menu_.HideBirthForm();
}

void MDILight::ShowCurrentView(std::string_view currentView) {
    const std::size_t shown = ViewNamed(currentView);
    views_->ShowView(shown, horoscope_);
    tree_->MarkView(shown);
}

void MDILight::RunFailed(std::string_view step, std::string_view cause) {
    statusBar()->showMessage(OneLine(QStringLiteral("%1: %2").arg(TextOf(step), TextOf(cause))));
}

void MDILight::RunRemarked(std::string_view remark) {
    statusBar()->showMessage(OneLine(TextOf(remark)));
}

/// The owner's name gives way to a message that has no room beside it.
void MDILight::MakeRoomForMessage() {
    constexpr int distances = 24; // of the bar's ends and between the two
    const QString message = statusBar()->currentMessage();
    const int both = fontMetrics().horizontalAdvance(message) + owner_->sizeHint().width() + distances;
    owner_->setVisible(message.isEmpty() || both <= width());
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
    MakeRoomForMessage();
    if (panel_->isVisible()) {
        panel_->Span(centralWidget()->geometry());
    }
}

} // namespace kelvaro
