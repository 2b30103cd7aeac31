#include "shell/window/HoroscopeViews.h"
#include "tests/shell/MainWindowCase.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QDataStream>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>

using namespace kelvaro;

namespace {

/// Presses Escape in every modal window that opens while it lives, and keeps the window's names.
class ModalWatch : public QObject {
public:
    ModalWatch() {
        timer_.callOnTimeout(this, [this] {
            QWidget *window = QApplication::activeModalWidget();
            if (window != nullptr && window->isVisible()) {
                names << window->objectName();
                QTest::keyClick(window, Qt::Key_Escape);
            }
        });
        timer_.start(20);
    }

    QStringList names;

private:
    QTimer timer_;
};

} // namespace

class MenuTest : public MainWindowCase {
    Q_OBJECT

private slots:
    void init() {
        MakeFolder();
        Open();
    }
    void cleanup() { window_.reset(); }

    void MenusStandInTheirOrder();
    void MenusWaitForTheDatabase();
    void EveryEntryOpensItsWindow();
    void FaultIsToldByTheBirthForm();
    void HelpOpensAtTheSubjectInFront();
    void KeysServeTheForms();
    void ChartWithADoubtfulZoneOpensFromTheSurvey();
    void WindowComesBackWhereItWas();
    void WindowBeyondTheScreensIsBroughtBack();
    void IconsFollowTheTheme();
    void LastChartComesBack();
    void ExitUnloadsTheWindowsInOrder();
    void EndWithOpenFormsIsClean();

private:
    QAction *Action(const char *name) const { return Find<QAction>(name); }

    void Click(QWidget *bar, QAction *action) const {
        const QRect place = qobject_cast<QMenuBar *>(bar) != nullptr
                                ? qobject_cast<QMenuBar *>(bar)->actionGeometry(action)
                                : qobject_cast<QMenu *>(bar)->actionGeometry(action);
        QTest::mouseClick(bar, Qt::LeftButton, {}, place.center());
    }

    /// Clicks an entry, in its menu where it has one.
    void Choose(const char *menu, const char *entry) const {
        Click(window_->menuBar(), Action(menu));
        if (entry != nullptr) {
            QVERIFY(Action(menu)->menu()->isVisible());
            Click(Action(menu)->menu(), Action(entry));
        }
    }
};

void MenuTest::MenusStandInTheirOrder() {
    QStringList captions;
    for (const QAction *top : window_->menuBar()->actions()) {
        captions << top->text();
        if (top->menu() != nullptr) {
            for (const QAction *entry : top->menu()->actions()) {
                captions << (entry->isSeparator() ? QStringLiteral("-") : entry->text());
            }
        }
    }
    QCOMPARE(captions.join(u'|'),
             QStringLiteral("&Enter Birth Details|&Tools|&Country Master|Cit&y Master|Time &Zone Master|-|"
                            "Edit Personal &Info|&Preferences|-|Check Time Zones of &Saved Charts...|&Time "
                            "Converter|&BirthTime To  IshtaGhatika|-|"
                            "Ishta&Ghatika To BirthTime|Help|&Help|-|&About Us|E&xit"));
}

void MenuTest::MenusWaitForTheDatabase() {
    std::filesystem::remove(DatabaseFile());
    const ModalWatch watch;
    Start();
    QCOMPARE(watch.names.size(), 1);
    for (const char *name : {"mnuBirthDetails", "mnuTools", "mnuBirthTime"}) {
        QVERIFY(!Action(name)->isEnabled());
    }
    QVERIFY(Action("mdiHelpmnu")->isEnabled());
    // The keys are off with their menus; those of the views are not.
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    QTest::keyClick(window_.get(), Qt::Key_N, Qt::ControlModifier);
    QTest::keyClick(window_.get(), Qt::Key_2, Qt::ControlModifier);
    QVERIFY(Find("frm_OpenChart") == nullptr);
    QVERIFY(Find("frm_rasi")->isVisible());
    QTest::keyClick(window_.get(), Qt::Key_P, Qt::ControlModifier);
    // Whatever asks for the database is told each time.
    for (int time = 2; time <= 3; ++time) {
        window_->Guard([] { QFAIL("There is no database."); });
        QCOMPARE(watch.names.size(), time);
    }
}

void MenuTest::EveryEntryOpensItsWindow() {
    Start();
    const struct {
        const char *menu, *entry, *window;
    } cases[] = {{"mnuBirthDetails", nullptr, "frm_OpenChart"},
                 {"mnuTools", "mDI_Country", "frm_Add_Country"},
                 {"mnuTools", "MDI_LAt_Lon", "frm_New_LatLon"},
                 {"mnuTools", "MDI_ADD_TimeZone", "frm_AddTimeZone"},
                 {"mnuTools", "mnudetails", "frm_Details"},
                 {"mnuTools", "mnuPreferences", "frm_Preferences"},
                 {"mnuBirthTime", "Mnu_IshtaGhatika", "frm_BirthTimetoIshtaGhatika"},
                 {"mnuBirthTime", "mnu_BirthTime", "frm_IshtaghatikaToBirthTime"},
                 {"mdiHelpmnu", "mnuAboutus", "frm_AboutUs"}};
    for (const auto &c : cases) {
        for (int time = 1; time <= 2; ++time) {
            const ModalWatch watch;
            Choose(c.menu, c.entry);
            QTRY_COMPARE(watch.names, QStringList(c.window));
            QTRY_COMPARE(QApplication::activeModalWidget(), nullptr);
        }
    }
    QVERIFY(window_->isVisible());
    QVERIFY(Action("mnuPreferences")->isEnabled());
}

void MenuTest::FaultIsToldByTheBirthForm() {
    Start();
    store::Connection other;
    other.Open(DatabaseFile());
    other.Execute("alter table Country_Master rename to Lost");
    const MessageBoxAnswer answer;
    Choose("mnuBirthDetails", nullptr);
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY2(answer.Text().contains(QStringLiteral("country_master"), Qt::CaseInsensitive),
             qPrintable(answer.Text()));
    QVERIFY(Find("frm_OpenChart") == nullptr);
    other.Execute("alter table Lost rename to Country_Master");
    Choose("mnuBirthDetails", nullptr);
    QVERIFY(Find("frm_OpenChart")->isVisible());
}

void MenuTest::HelpOpensAtTheSubjectInFront() {
    Start();
    const auto text = [this] {
        auto *help = Find("helpWindow");
        return help->findChild<QTextBrowser *>()->textCursor().block().text();
    };
    Choose("mdiHelpmnu", "mnuHelp");
    QCOMPARE(text(), QStringLiteral("Birth Details"));
    QTest::keyClick(window_.get(), Qt::Key_9, Qt::ControlModifier);
    QTest::keyClick(window_.get(), Qt::Key_F1);
    QCOMPARE(text(), QStringLiteral("Dasa"));
    Choose("mnuBirthDetails", nullptr);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_F1);
    QCOMPARE(text(), QStringLiteral("Enter Birth Details"));
}

void MenuTest::KeysServeTheForms() {
    Start();
    QTest::keyClick(window_.get(), Qt::Key_P, Qt::ControlModifier);
    QVERIFY(Find("Frm_Print")->isVisible());
    QCOMPARE(window_->focusWidget()->objectName(), QStringLiteral("CoPrt"));
    QTest::keyClick(window_.get(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(QApplication::activeModalWidget()->objectName(), QStringLiteral("frm_OpenChart"));
    QTest::keyClicks(QApplication::activeModalWidget()->focusWidget(), QStringLiteral("Uma"));
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    QTest::keyClick(window_.get(), Qt::Key_N, Qt::ControlModifier);
    QVERIFY(QApplication::activeModalWidget()->findChild<QWidget *>("cmdBringBack")->isVisible());
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    {
        // Both the list of charts and the form behind it are left with Escape.
        const ModalWatch watch;
        QTest::keyClick(window_.get(), Qt::Key_O, Qt::ControlModifier);
        QTRY_COMPARE(watch.names, (QStringList{"Frm_RetriveBirthData", "frm_OpenChart"}));
    }
}

void MenuTest::ChartWithADoubtfulZoneOpensFromTheSurvey() {
    Start();
    window_->HoroscopeInForce().connection.Execute(
        "insert into ChartSave select null, 'Wrong~4-Jul-1990', 'Male', CountryID, CityName, 4, 7, 1990, 8, "
        "15, 0, "
        "LatitudeDegree, Latitude_NS, LatitudeMinute, LongitudeDegree, Longitude_EW, LongitudeMinute, SNo "
        "from City_Master, TimeZone where CityName = 'Chicago' and Place = 'Central Standard Time (USA)'");
    QString summary;
    QTimer::singleShot(100, window_.get(), [&summary] {
        QWidget *survey = QApplication::activeModalWidget();
        for (const QLabel *label : survey->findChildren<QLabel *>()) {
            summary += label->text() + u'|';
        }
        QTest::keyClick(survey, Qt::Key_Return);
    });
    Choose("mnuTools", "mnuClockSurvey");
    QVERIFY(summary.startsWith(
        u"Saved charts: 1. Agreeing with the records: 0, differing: 1, not to be checked: 0.|"));
    QVERIFY(summary.contains(u"; the chosen zone says 6 hrs W"));
    auto *form = Find("frm_OpenChart");
    QVERIFY(form->isVisible());
    QCOMPARE(form->findChild<QLineEdit *>(QStringLiteral("Txt_VC_ChartName"))->text(),
             QStringLiteral("Wrong"));
    QVERIFY(form->findChild<QLabel *>(QStringLiteral("label_clock"))
                ->text()
                .contains(u"summer time; the chosen"));
}

void MenuTest::WindowComesBackWhereItWas() {
    window_->setWindowState(Qt::WindowNoState);
    window_->setGeometry(40, 60, 1040, 720);
    QTRY_COMPARE(window_->size(), QSize(1040, 720));
    const QRect place = window_->geometry();
    QVERIFY(window_->close());
    Open();
    QTRY_COMPARE(window_->geometry(), place);
}

void MenuTest::IconsFollowTheTheme() {
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    for (const QColor &ink : {QColor(20, 20, 20), QColor(240, 240, 240)}) {
        dark.setColor(QPalette::WindowText, ink);
        QApplication::setPalette(dark);
        for (const char *menu : {"mnuTools", "mnuBirthTime", "mdiHelpmnu"}) {
            for (const QAction *entry : Find<QAction>(menu)->menu()->actions()) {
                const QImage icon = entry->icon().pixmap(QSize(24, 24)).toImage();
                bool isDrawn = entry->isSeparator();
                for (int dot = 0; !isDrawn && dot < icon.width() * icon.height(); ++dot) {
                    isDrawn = icon.pixelColor(dot % icon.width(), dot / icon.width()) == ink;
                }
                QVERIFY2(isDrawn, qPrintable(entry->text()));
            }
        }
    }
    QApplication::setPalette(before);
}

/// What the settings hold after screens have gone, or after somebody wrote into them.
void MenuTest::WindowBeyondTheScreensIsBroughtBack() {
    const QRect screen = window_->screen()->availableGeometry();
    for (const QRect &place : {QRect(0, 0, 5000, 4000), QRect(100, 100, 2000000000, 2000000000),
                               QRect(screen.right() - 100, screen.bottom() - 100, 800, 600)}) {
        for (const bool isMaximized : {false, true}) {
            QByteArray kept;
            QDataStream stream(&kept, QIODevice::WriteOnly);
            stream.setVersion(QDataStream::Qt_4_0);
            stream << quint32(0x1D9D0CB) << quint16(3) << quint16(0) << place << place << 0 << isMaximized
                   << false << 0 << place;
            QSettings(SettingsFile(), QSettings::IniFormat).setValue(QStringLiteral("Window/Geometry"), kept);
            Open();
            QVERIFY(screen.contains(window_->geometry()));
            window_->showNormal();
            QVERIFY(screen.contains(window_->geometry()));
        }
    }
}

void MenuTest::LastChartComesBack() {
    QSettings settings(SettingsFile(), QSettings::IniFormat);
    settings.setValue(QStringLiteral("Horo/Name"), QStringLiteral("Ananda"));
    settings.sync();
    Open();
    Start();
    QCOMPARE(window_->HoroscopeInForce().state.birth.ChartName, std::string("Ananda"));
    QVERIFY(window_->statusBar()->currentMessage().isEmpty());

    settings.setValue(QStringLiteral("Horo/Year"), QStringLiteral("no year"));
    settings.sync();
    Open();
    Start();
    QCOMPARE(window_->HoroscopeInForce().state.birth.ChartName, std::string("Velnesh"));
    QVERIFY(window_->statusBar()->currentMessage().contains(QStringLiteral("sample chart")));

    // A file of which not even the section is left. Another name, since files are read once.
    const QString file = folder_->folder.filePath(QStringLiteral("damaged.ini"));
    QFile damaged(file);
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("\x8f\x02 no settings\n\xff\n") > 0);
    damaged.close();
    MDILight window(file);
    window.Start(Folder(), Folder() / "user");
    QVERIFY(window.statusBar()->currentMessage().contains(QStringLiteral("are damaged")));
}

void MenuTest::ExitUnloadsTheWindowsInOrder() {
    Start();
    QStringList unloaded;
    const QStringList order{"frm_UserDetails", "frm_rasi",  "frm_BhavaChart",   "frm_Navamsa",
                            "frm_CBhava",      "Frm_PP",    "Frm_Vargas",       "Frm_AVargas",
                            "Frm_Dasa",        "Frm_Print", "frm_MainHoroscope"};
    for (std::size_t view = 0; view < horoscopeViews.size(); ++view) {
        window_->ChooseView(view);
    }
    for (const QString &name : order) {
        connect(window_->findChild<QWidget *>(name), &QObject::destroyed, this,
                [&unloaded, name] { unloaded << name; });
    }
    Choose("mdiHelpmnu", "mnuExit");
    QVERIFY(!window_->isVisible());
    window_.reset();
    QCOMPARE(unloaded, order);
}

void MenuTest::EndWithOpenFormsIsClean() {
    Start();
    QTest::keyClick(window_.get(), Qt::Key_O, Qt::ControlModifier);
    QTRY_VERIFY(Find("Frm_RetriveBirthData") != nullptr);
    window_.reset(); // as a session that ends does it
}

QTEST_MAIN(MenuTest)
#include "MenuTest.moc"
