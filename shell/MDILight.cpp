#include "shell/MDILight.h"

#include "horoscope/CalculateHoroscope.h"
#include "horoscope/PreferencesEntry.h"
#include "shell/ChartColours.h"
#include "shell/MainHoroscope.h"
#include "shell/MessageBoxes.h"
#include "shell/PreferencesDialog.h"
#include "shell/StatusPanel.h"
#include "store/DatabaseFile.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>

#include <algorithm>

namespace kelvaro {

namespace {

constexpr int treeWidth = 190;
constexpr int splitterWidth = 5;

/// A window of the area without a frame. It takes up the whole area and stays, whatever key is pressed.
class FramelessSubWindow : public QMdiSubWindow {
public:
    explicit FramelessSubWindow(QWidget *view) : QMdiSubWindow(nullptr, Qt::FramelessWindowHint) {
        setWidget(view);
        setAttribute(Qt::WA_DeleteOnClose, false);
    }

protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

/// The place of a view among the views; the first for an empty or unknown name.
std::size_t ViewNamed(std::string_view name) {
    const auto row = std::ranges::find(horoscopeViews, name, &HoroscopeViewRow::viewName);
    return row == horoscopeViews.end() ? 0 : static_cast<std::size_t>(row - horoscopeViews.begin());
}

QString TextOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

MDILight::MDILight() : horoscope_(connection_, *this), area_(new QMdiArea), tree_(new MainHoroscope) {
    setObjectName(QStringLiteral("MDILight"));
    setWindowTitle(QStringLiteral("Kelvaro - Kelvaro Basic (Version 2.4)"));
    area_->setBackground(parchmentColour);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto *splitter = new QSplitter;
    splitter->addWidget(tree_);
    splitter->addWidget(area_);
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
    BuildViews();
    statusBar()->show();
    connect(tree_, &MainHoroscope::ViewChosen, this, &MDILight::ChooseView);
}

void MDILight::Start(const std::filesystem::path &programFolder, const std::filesystem::path &userFolder) {
    try {
        connection_.Open(store::FindDatabaseFile(programFolder, userFolder));
        store::OnLoadClass preferences;
        preferences.ClsPath = programFolder.string();
        preferences.FnPreferences(connection_);
        PutPreferencesInForce(preferences, horoscope_.state);
        FNInitialize();
        // A database that cannot be written would otherwise be told only when something is to be saved.
        connection_.RequireWritable();
    } catch (const std::exception &error) {
        ShowError(this, error);
    }
}

/// The first horoscope is that of the record as it stands.
void MDILight::FNInitialize() {
    Calculate();
}

void MDILight::Calculate() {
    CalculateHoroscope(horoscope_);
    if (isCloseWanted_ && !horoscope_.isCalculating) {
        close();
    }
}

void MDILight::BuildMenu() {
    QMenu *tools = menuBar()->addMenu(tr("&Tools"));
    tools->menuAction()->setObjectName(QStringLiteral("mnuTools"));
    QAction *preferences = tools->addAction(tr("&Preferences"), this, &MDILight::ShowPreferences);
    preferences->setObjectName(QStringLiteral("mnuPreferences"));
    QMenu *help = menuBar()->addMenu(tr("Help"));
    help->menuAction()->setObjectName(QStringLiteral("mdiHelpmnu"));
    QAction *about = help->addAction(tr("&About Us"), this, &MDILight::ShowAbout);
    about->setObjectName(QStringLiteral("mnuAboutus"));
    QAction *exit = help->addAction(tr("E&xit"), this, &QWidget::close);
    exit->setObjectName(QStringLiteral("mnuExit"));
}

void MDILight::BuildViews() {
    for (std::size_t index = 0; index < horoscopeViews.size(); ++index) {
        HoroscopeView *view = horoscopeViews.at(index).make();
        view->setObjectName(QString::fromLatin1(horoscopeViews.at(index).form));
        auto *window = new FramelessSubWindow(view);
        area_->addSubWindow(window, window->windowFlags());
        window->hide();
        views_.at(index) = {view, window, true};
    }
}

void MDILight::ChooseView(std::size_t view) {
    horoscope_.CurrentView = horoscopeViews.at(view).viewName;
    // A run shows the view that was chosen last when it comes to its end.
    if (!horoscope_.isCalculating) {
        ShowCurrentView(horoscope_.CurrentView);
    }
}

void MDILight::ShowPreferences() {
    if (horoscope_.isCalculating) {
        return;
    }
    try {
        PreferencesDialog(horoscope_, this).exec();
    } catch (const std::exception &error) {
        ShowError(this, error);
    }
}

void MDILight::ShowAbout() {
    QMessageBox::about(this, tr("About Us"),
                       tr("<h3>Kelvaro Basic</h3><p>Version 2.4</p>"
                          "<p>Vedic astrology on the desktop: the whole horoscope of a birth, computed by "
                          "the program itself.</p>"
                          "<p>Place data: GeoNames (https://www.geonames.org), CC BY 4.0 "
                          "(https://creativecommons.org/licenses/by/4.0/); names shortened and made unique, "
                          "positions rounded to "
                          "minutes.</p>"
                          "<p>Zone offsets: the tz database, release 2025b, public domain.</p>"));
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
}

void MDILight::HideHoroscopeForms() {
    for (ViewWindow &each : views_) {
        each.window->hide();
        each.isStale = true;
    }
}

void MDILight::ShowCurrentView(std::string_view currentView) {
    const std::size_t shown = ViewNamed(currentView);
    const bool isInTree = tree_->isAncestorOf(focusWidget());
    RefreshView(shown);
    for (std::size_t index = 0; index < views_.size(); ++index) {
        views_.at(index).window->setVisible(index == shown);
    }
    views_.at(shown).window->showMaximized();
    area_->setActiveSubWindow(views_.at(shown).window);
    tree_->MarkView(shown);
    if (isInTree) {
        // The shown window drew the keys to itself, and the user is still on the way through the tree.
        tree_->setFocus();
    }
}

/// Fills a view at the first look at it after a run.
void MDILight::RefreshView(std::size_t view) {
    if (views_.at(view).isStale) {
        views_.at(view).isStale = false;
        views_.at(view).view->Refresh(horoscope_);
    }
}

void MDILight::RunFailed(std::string_view step, std::string_view cause) {
    statusBar()->showMessage(QStringLiteral("%1: %2").arg(TextOf(step), TextOf(cause)));
}

void MDILight::closeEvent(QCloseEvent *event) {
    // A run must come to its end before what it works on goes away.
    isCloseWanted_ = horoscope_.isCalculating;
    event->setAccepted(!isCloseWanted_);
}

void MDILight::resizeEvent(QResizeEvent *event) {
    QMainWindow::resizeEvent(event);
    if (panel_->isVisible()) {
        panel_->Span(centralWidget()->geometry());
    }
}

} // namespace kelvaro
