#include "shell/MDILight.h"

#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <memory>

using namespace kelvaro;

namespace {

/// Counts how often the panel of a run opens.
class ShowCounter : public QObject {
public:
    explicit ShowCounter(QWidget *watched) { watched->installEventFilter(this); }
    int Count() const { return count_; }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override {
        count_ += event->type() == QEvent::Show ? 1 : 0;
        return false;
    }

private:
    int count_ = 0;
};

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void StartShowsTheSampleChart();
    void TreeOpensViewsByMouseAndKeys();
    void OneFrameIsVisibleInEachStyle_data();
    void OneFrameIsVisibleInEachStyle();
    void NoViewCanBeLost();
    void NothingStartsASecondRunInsideARun();
    void WindowClosedInARunClosesAtItsEnd();
    void FailedRunNamesItsCauseAndShowsNoFigures();

private:
    QWidget *Form(const char *name) const { return window_->findChild<QWidget *>(QString::fromLatin1(name)); }
    QTreeWidget *Tree() const { return window_->findChild<QTreeWidget *>(QStringLiteral("tV")); }

    QString CellText(const char *form, const QString &label) const {
        return Form(form)->findChild<QLabel *>(label)->text();
    }

    void ClickNode(int node) const {
        const QRect row = Tree()->visualItemRect(Tree()->topLevelItem(node));
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, row.center());
    }

    std::unique_ptr<MDILight> window_;
};

void MainWindowTest::init() {
    window_ = std::make_unique<MDILight>();
    window_->resize(1000, 700);
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    window_->FNInitialize();
}

void MainWindowTest::cleanup() {
    window_.reset();
}

void MainWindowTest::StartShowsTheSampleChart() {
    QCOMPARE(window_->windowTitle(), QStringLiteral("Kelvaro - Kelvaro Basic (Version 2.4)"));
    QVERIFY(Form("frm_rasi")->isVisible());
    QVERIFY(!Form("frm_Navamsa")->isVisible());
    QVERIFY(!Form("PicMask")->isVisible());
    QVERIFY(window_->statusBar()->currentMessage().isEmpty());
    // By any almanac for 14 July 1965 the sidereal Sun is near the end of Gemini, the Moon in the first days
    // after full in Capricorn, Saturn in Aquarius, Jupiter and Rahu in Taurus, Ketu opposite.
    QVERIFY(CellText("frm_rasi", "Lab_GM_GirlHouse_2").startsWith(QStringLiteral("Sun  28.")));
    QVERIFY(CellText("frm_rasi", "Lab_GM_GirlHouse_9").startsWith(QStringLiteral("Moo  5.")));
    QVERIFY(CellText("frm_rasi", "Lab_GM_GirlHouse_10").startsWith(QStringLiteral("Sat  ")));
    QVERIFY(CellText("frm_rasi", "Lab_GM_GirlHouse_1").contains(QStringLiteral("\r\nRah  18.")));
    QVERIFY(CellText("frm_rasi", "Lab_GM_GirlHouse_7").startsWith(QStringLiteral("Ket  18.")));
    QVERIFY(Form("Lab_GM_GirlHouse_2")->accessibleName().startsWith(QStringLiteral("Gemini: Sun 28.")));
}

void MainWindowTest::TreeOpensViewsByMouseAndKeys() {
    ClickNode(1);
    QVERIFY(Form("frm_Navamsa")->isVisible());
    QVERIFY(!Form("frm_rasi")->isVisible());
    QCOMPARE(window_->HoroscopeInForce().CurrentView, std::string("Navamsa"));

    QVERIFY(window_->focusWidget() == Tree());
    QTest::keyClick(window_->focusWidget(), Qt::Key_Up);
    QVERIFY(Form("frm_rasi")->isVisible());
    QVERIFY(!Form("frm_Navamsa")->isVisible());
    QCOMPARE(window_->HoroscopeInForce().CurrentView, std::string("Rasi"));

    QTest::keyClick(window_->focusWidget(), Qt::Key_Down);
    window_->Calculate();
    QVERIFY(Form("frm_Navamsa")->isVisible());
    QCOMPARE(Tree()->currentItem()->text(0), QStringLiteral("Navamsa"));
}

void MainWindowTest::OneFrameIsVisibleInEachStyle_data() {
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QString>("lagnaLabel");
    QTest::newRow("South") << "South"
                           << "Frame_SouthBride"
                           << "Lab_GM_GirlHouse_6";
    QTest::newRow("East") << "East"
                          << "Frame_EastBride"
                          << "Lab_chartHouse_Girl_Rasi_7";
    QTest::newRow("North") << "North"
                           << "Frame_NorthBride"
                           << "Lab_ChartHouseN_Girl_1";
}

void MainWindowTest::OneFrameIsVisibleInEachStyle() {
    QFETCH(QString, style);
    QFETCH(QString, frame);
    QFETCH(QString, lagnaLabel);
    window_->HoroscopeInForce().state.ChartStyle = style.toStdString();
    window_->HoroscopeInForce().state.Language = "Sanskrit";
    window_->Calculate();
    for (const char *each : {"Frame_SouthBride", "Frame_EastBride", "Frame_NorthBride"}) {
        QCOMPARE(Form("frm_rasi")->findChild<QWidget *>(each)->isVisible(), frame == QLatin1String(each));
    }
    QVERIFY(CellText("frm_rasi", lagnaLabel).startsWith(QStringLiteral("Lag")));
    const QString firstHouse = CellText("frm_rasi", "Lab_NHouseNo_1");
    QCOMPARE(firstHouse, style == QStringLiteral("North") ? QStringLiteral("7") : QString());
}

void MainWindowTest::NoViewCanBeLost() {
    QWidget *view = Form("frm_rasi");
    QTest::keyClick(view, Qt::Key_F4, Qt::ControlModifier);
    QTest::keyClick(view, Qt::Key_W, Qt::ControlModifier);
    view->window()->resize(900, 600);
    view->parentWidget()->close();
    QVERIFY(view->isVisible());
    auto *area = window_->findChild<QMdiArea *>();
    QTRY_COMPARE(view->parentWidget()->geometry(), area->viewport()->rect());
    QCOMPARE(view->geometry(), view->parentWidget()->rect());
    QCOMPARE(window_->windowTitle(), QStringLiteral("Kelvaro - Kelvaro Basic (Version 2.4)"));
}

void MainWindowTest::NothingStartsASecondRunInsideARun() {
    QPushButton button(window_.get());
    button.show();
    int clicks = 0;
    connect(&button, &QPushButton::clicked, this, [&] {
        ++clicks;
        window_->Calculate();
    });
    QTimer::singleShot(0, this, [&] {
        QVERIFY(window_->HoroscopeInForce().isCalculating);
        QVERIFY(Form("PicMask")->isVisible());
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::keyClick(&button, Qt::Key_Space);
        ClickNode(1);
        QVERIFY(!Form("frm_Navamsa")->isVisible());
    });
    const ShowCounter runs(Form("PicMask"));
    window_->Calculate();
    QCOMPARE(clicks, 2);
    QCOMPARE(runs.Count(), 1);
    QVERIFY(!Form("PicMask")->isVisible());
    QVERIFY(Form("frm_Navamsa")->isVisible());
}

void MainWindowTest::WindowClosedInARunClosesAtItsEnd() {
    QTimer::singleShot(0, this, [&] {
        QVERIFY(!window_->close());
        QVERIFY(window_->isVisible());
    });
    window_->Calculate();
    QVERIFY(!window_->isVisible());
}

void MainWindowTest::FailedRunNamesItsCauseAndShowsNoFigures() {
    window_->HoroscopeInForce().state.BirthDay = "31";
    window_->HoroscopeInForce().state.BirthMonth = "Feb";
    window_->Calculate();
    const QString message = window_->statusBar()->currentMessage();
    QVERIFY2(message.startsWith(QStringLiteral("Rasi positions: ")), qPrintable(message));
    QVERIFY2(message.contains(QStringLiteral("1965")), qPrintable(message));
    QVERIFY(!Form("PicMask")->isVisible());
    for (const QLabel *label : Form("frm_rasi")->findChildren<QLabel *>()) {
        QCOMPARE(label->text(), QString());
    }

    window_->HoroscopeInForce().state.BirthDay = "28";
    window_->Calculate();
    QVERIFY(window_->statusBar()->currentMessage().isEmpty());
}

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
