#include "shell/widgets/MessageBoxes.h"
#include "shell/window/HoroscopeViews.h"
#include "tests/shell/Heartbeat.h"
#include "tests/shell/MainWindowCase.h"
#include "tests/shell/MessageBoxAnswer.h"
#include "tests/system/System.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>
#include <QTreeWidget>

using namespace kelvaro;

namespace {

/// Places of the views in the tree.
constexpr int rasiNode = 1;
constexpr int navamsaNode = 2;
constexpr int dasaNode = 8;

} // namespace

class MainWindowTest : public MainWindowCase {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window_.reset(); }

    void StartShowsTheSampleBirth();
    void EveryViewShowsItsContents();
    void DasaViewFindsTodayAndFollowsTheChoice();
    void FaultyDatabaseIsReportedAndTheWindowStays();
    void UnreadableSettingsGiveTheSampleChartAndAWord();
    void TreeOpensViewsByMouseAndKeys();
    void OneFrameIsVisibleInEachStyle();
    void ViewsFillTheirAreaAndHandTheKeysOn();
    void ViewsShownAgainHaveTheSizeOfTheWindow();
    void PanelStandsLeftOfTheMiddle();
    void NothingStartsASecondRunInsideARun();
    void WindowClosedInARunClosesAtItsEnd();
    void FailedRunNamesItsCauseAndShowsNoFigures();
    void ParchmentIsReadUnderADarkTheme();
    void TextsFromOutsideHoldNothing_data();
    void TextsFromOutsideHoldNothing();

private:
    QWidget *Form(const char *name) const { return Find(name); }
    QTreeWidget *Tree() const { return Find<QTreeWidget>("tV"); }
    QTableView *Grid(const char *name) const { return Find<QTableView>(name); }

    QString CellText(const char *form, const QString &label) const {
        return Form(form)->findChild<QLabel *>(label)->text();
    }

    void ClickNode(int node) const {
        const QRect row = Tree()->visualItemRect(Tree()->topLevelItem(node));
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, row.center());
    }

    QString CellOf(const char *grid, int row, int column) const {
        return Grid(grid)->model()->index(row, column).data().toString();
    }
};

void MainWindowTest::init() {
    MakeFolder();
    Open();
    window_->resize(1000, 700);
    Start();
    QVERIFY(Form("frm_UserDetails")->isVisible());
    ClickNode(rasiNode);
}

void MainWindowTest::StartShowsTheSampleBirth() {
    QCOMPARE(window_->windowTitle(), QStringLiteral("Kelvaro - Kelvaro Basic (Version 2.4)"));
    QVERIFY(Form("frm_rasi")->isVisible());
    QVERIFY(!Form("PicMask")->isVisible());
    QVERIFY(window_->statusBar()->currentMessage().isEmpty());
    QVERIFY(CellText("frm_rasi", "Lab_GM_GirlHouse_2").startsWith(QStringLiteral("Sun  28.")));
    QVERIFY(CellText("frm_rasi", "Lab_GM_GirlHouse_1").contains(QStringLiteral("\r\nRah  18.")));
    QVERIFY(Form("Lab_GM_GirlHouse_2")->accessibleName().startsWith(QStringLiteral("Gemini: Sun 28.")));
}

void MainWindowTest::EveryViewShowsItsContents() {
    QCOMPARE(Tree()->topLevelItemCount(), static_cast<int>(horoscopeViews.size()));
    for (int node = 0; node < Tree()->topLevelItemCount(); ++node) {
        ClickNode(node);
        QStringList visible;
        for (const HoroscopeViewRow &row : horoscopeViews) {
            const QWidget *form = Form(row.form);
            visible << (form != nullptr && form->isVisible() ? QStringList(row.form) : QStringList());
        }
        QCOMPARE(visible, QStringList(horoscopeViews.at(static_cast<std::size_t>(node)).form));
    }
    QCOMPARE(Find<QLabel>("txtgmt")->text(), QStringLiteral("14/Jul/1965 08:45 AM"));
    QCOMPARE(Find<QLabel>("txtTithi")->text(), QStringLiteral("Pratipada"));
    QCOMPARE(CellOf("mshNirayana", 9, 0), QStringLiteral("Ket"));
    QCOMPARE(Grid("mshNirayana")->model()->headerData(8, Qt::Horizontal).toString().trimmed(),
             QStringLiteral("Karaka*"));
    QCOMPARE(CellOf("mshAshtaVarga", 12, 10), QStringLiteral("337"));
    // No text is cut at this size, those in bold included.
    for (const char *name : {"mshNirayana", "mshVargas", "mshAshtaVarga", "msh_Bhava", "bhava_features",
                             "mshDasa", "mshBukti", "mshAntra"}) {
        const QTableView *grid = Grid(name);
        for (int cell = 0; cell < grid->model()->rowCount() * grid->model()->columnCount(); ++cell) {
            const int column = cell % grid->model()->columnCount();
            const QModelIndex index = grid->model()->index(cell / grid->model()->columnCount(), column);
            QVERIFY2(grid->columnWidth(column) >= grid->sizeHintForIndex(index).width(), name);
        }
    }
}

void MainWindowTest::DasaViewFindsTodayAndFollowsTheChoice() {
    ClickNode(dasaNode);
    QCOMPARE(Grid("mshDasa")->model()->rowCount(), 9);
    QCOMPARE(Find<QLabel>("Lab_DasaBalanceV")->text(),
             QStringLiteral("Dasa Balance at Birth :Dasa  Sun 2-0- 17"));
    // Born in 1965 with two years of the Sun's dasa left, the native has Jupiter's or Saturn's dasa from 2002
    // to 2037, and Mercury's after it.
    const int today = Grid("mshDasa")->currentIndex().row();
    QVERIFY(today >= 4);
    QVERIFY(Find<QLabel>("todaysPeriods")
                ->text()
                .contains(QStringLiteral("Dasa ") + CellOf("mshDasa", today, 0)));

    // The Moon's dasa, from 1967 on, and in it the second bhukti, of Mars.
    QTest::mouseClick(Grid("mshDasa")->viewport(), Qt::LeftButton, {},
                      Grid("mshDasa")->visualRect(Grid("mshDasa")->model()->index(1, 0)).center());
    QCOMPARE(Grid("mshBukti")->model()->rowCount(), 9);
    QCOMPARE(CellOf("mshBukti", 0, 0), QStringLiteral("Moon Dasa"));
    QTest::mouseClick(Grid("mshBukti")->viewport(), Qt::LeftButton, {},
                      Grid("mshBukti")->visualRect(Grid("mshBukti")->model()->index(1, 0)).center());
    QCOMPARE(Find<QComboBox>("antraSections")->currentText(), QStringLiteral("Moon Dasa, Mars Bhukthi"));
    QCOMPARE(Grid("mshAntra")->model()->rowCount(), 9);
    QCOMPARE(CellOf("mshAntra", 0, 0), QStringLiteral("Mars"));

    QTest::mouseClick(Find<QPushButton>("cmdToday"), Qt::LeftButton);
    QCOMPARE(Grid("mshDasa")->currentIndex().row(), today);
}

void MainWindowTest::FaultyDatabaseIsReportedAndTheWindowStays() {
    MessageBoxAnswer answer;
    int starts = 0;
    const auto startTelling = [&](QStringView cause) {
        Open();
        {
            const OrdinaryUser user;
            Start();
        }
        QCOMPARE(answer.Count(), ++starts);
        QVERIFY2(answer.Text().contains(cause), qPrintable(answer.Text()));
        QCOMPARE(answer.Icon(), QMessageBox::Critical);
        QVERIFY(window_->isVisible());
        QVERIFY(!Form("PicMask")->isVisible());
    };
    std::filesystem::permissions(Folder(), std::filesystem::perms::all);
    std::filesystem::permissions(DatabaseFile(), std::filesystem::perms(0444));
    startTelling(u"write-protected");
    store::Connection other;
    std::filesystem::permissions(DatabaseFile(), std::filesystem::perms(0666));
    other.Open(DatabaseFile());
    other.Execute("delete from Preference");
    other.Close();
    startTelling(u"preferences");
    std::filesystem::remove(DatabaseFile());
    startTelling(u"missing");
}

void MainWindowTest::UnreadableSettingsGiveTheSampleChartAndAWord() {
    const auto startsWithTheSample = [this] {
        Open();
        Start();
        QCOMPARE(window_->HoroscopeInForce().state.birth.ChartName, std::string("Velnesh"));
        const QString message = window_->statusBar()->currentMessage();
        QVERIFY2(message.startsWith(QStringLiteral("The last chart cannot be read from the settings")),
                 qPrintable(message));
    };
    for (const char *text : {"[Horo]\nName=Ravi\nno line of settings\n", "[Horo]\nName=Ravi\nLatDeg=95\n"}) {
        QFile file(SettingsFile());
        QVERIFY(file.open(QFile::WriteOnly | QFile::Truncate));
        file.write(text);
        file.close();
        startsWithTheSample();
    }
    window_.reset();
    QVERIFY(QFile::remove(SettingsFile()));
    QVERIFY(QDir().mkdir(SettingsFile()));
    startsWithTheSample();
}

void MainWindowTest::TreeOpensViewsByMouseAndKeys() {
    ClickNode(navamsaNode);
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

void MainWindowTest::OneFrameIsVisibleInEachStyle() {
    const struct {
        const char *style, *frame, *lagnaLabel, *firstHouse;
    } cases[] = {{"South", "Frame_SouthBride", "Lab_GM_GirlHouse_6", ""},
                 {"East", "Frame_EastBride", "Lab_chartHouse_Girl_Rasi_7", ""},
                 {"North", "Frame_NorthBride", "Lab_ChartHouseN_Girl_1", "7"}};
    for (const auto &c : cases) {
        window_->HoroscopeInForce().state.preferences.ChartStyle = c.style;
        window_->HoroscopeInForce().state.preferences.Language = "Sanskrit";
        window_->Calculate();
        for (const auto &each : cases) {
            QCOMPARE(Form("frm_rasi")->findChild<QWidget *>(each.frame)->isVisible(), &each == &c);
        }
        QVERIFY(CellText("frm_rasi", c.lagnaLabel).startsWith(QStringLiteral("Lag")));
        QCOMPARE(CellText("frm_rasi", "Lab_NHouseNo_1"), QString(c.firstHouse));
    }
}

void MainWindowTest::ViewsFillTheirAreaAndHandTheKeysOn() {
    QWidget *area = Form("frm_rasi")->parentWidget();
    window_->resize(900, 600);
    QTRY_COMPARE(Form("frm_rasi")->geometry(), area->rect());
    // The views that were hidden, and made, since then are as large; the keys stay in the tree.
    ClickNode(dasaNode);
    QCOMPARE(Form("Frm_Dasa")->geometry(), area->rect());
    QVERIFY(window_->focusWidget() == Tree());
    ClickNode(navamsaNode);
    ClickNode(dasaNode);
    Grid("mshBukti")->setFocus();
    QTest::keyClick(window_.get(), Qt::Key_6, Qt::ControlModifier);
    QVERIFY(Form("Frm_PP")->isAncestorOf(window_->focusWidget()));
    QTest::keyClick(window_.get(), Qt::Key_9, Qt::ControlModifier);
    QVERIFY(Grid("mshBukti")->hasFocus());
}

void MainWindowTest::ViewsShownAgainHaveTheSizeOfTheWindow() {
    const auto *area = Find<QScrollArea>("views");
    const auto visitAll = [&](const auto &check) {
        for (int node = 0; node < Tree()->topLevelItemCount(); ++node) {
            ClickNode(node);
            check(Form(horoscopeViews.at(static_cast<std::size_t>(node)).form));
        }
    };
    window_->resize(1900, 1050);
    visitAll([](const QWidget * /*view*/) {});
    window_->resize(1000, 620);
    visitAll([&](const QWidget *view) { QCOMPARE(view->geometry(), area->viewport()->rect()); });
    // Texts that wrap have their height in a window that is narrower than the tables.
    window_->resize(520, 380);
    visitAll([](const QWidget *view) {
        for (const QLabel *text : view->findChildren<QLabel *>()) {
            const auto isWhole = [&] {
                return !text->isVisible() || !text->wordWrap() ||
                       text->height() >= text->heightForWidth(text->width());
            };
            QTRY_VERIFY2(isWhole(), qPrintable(view->objectName() + u' ' + text->text()));
        }
    });
    // Where a chart would become too small to read, it is scrolled.
    ClickNode(rasiNode);
    window_->resize(420, 260);
    QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);
    QVERIFY(Form("frm_rasi")->height() >= 300);
    window_->resize(1000, 620);
    QTRY_COMPARE(Form("frm_rasi")->geometry(), area->viewport()->rect());
}

void MainWindowTest::PanelStandsLeftOfTheMiddle() {
    QTimer::singleShot(0, this, [&] {
        const QRect content = Form("Frame1")->geometry();
        const int shift = (Form("PicMask")->width() - content.width()) / 2 - content.left();
        QCOMPARE(shift, 20); // 300 units, 15 to a dot
    });
    window_->Calculate();
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
        ClickNode(navamsaNode);
        QVERIFY(Form("frm_Navamsa") == nullptr);
    });
    window_->Calculate();
    QCOMPARE(clicks, 2);
    QVERIFY(!Form("PicMask")->isVisible());
    QVERIFY(Form("frm_Navamsa")->isVisible());
}

void MainWindowTest::WindowClosedInARunClosesAtItsEnd() {
    QTimer::singleShot(0, this, [&] {
        QVERIFY(!window_->close());
        QVERIFY(window_->isVisible());
    });
    window_->Calculate();
    QTRY_VERIFY(!window_->isVisible());
}

void MainWindowTest::FailedRunNamesItsCauseAndShowsNoFigures() {
    window_->HoroscopeInForce().state.birth.BirthDay = "31";
    window_->HoroscopeInForce().state.birth.BirthMonth = "Feb";
    window_->Calculate();
    const QString message = window_->statusBar()->currentMessage();
    QVERIFY2(message.startsWith(QStringLiteral("Rasi positions: ")), qPrintable(message));
    QVERIFY2(message.contains(QStringLiteral("1965")), qPrintable(message));
    QVERIFY(!Form("PicMask")->isVisible());
    for (const QLabel *label : Form("frm_rasi")->findChildren<QLabel *>()) {
        QCOMPARE(label->text(), QString());
    }

    window_->HoroscopeInForce().state.birth.BirthDay = "28";
    window_->Calculate();
    QVERIFY(window_->statusBar()->currentMessage().isEmpty());
}

/// With a style sheet, which keeps parts from inheriting the colours of what they stand on.
void MainWindowTest::ParchmentIsReadUnderADarkTheme() {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(50, 50, 50));
    QApplication::setPalette(dark);
    qApp->setStyleSheet(QStringLiteral("* { font-family: 'DejaVu Serif'; }"));
    Open();
    Start();
    for (std::size_t view = 0; view < horoscopeViews.size(); ++view) {
        window_->ChooseView(view);
        const QList<QWidget *> parts = Form(horoscopeViews.at(view).form)->findChildren<QWidget *>();
        for (const QWidget *part : parts) {
            for (const auto &[ink, paper] : {std::pair{QPalette::WindowText, QPalette::Window},
                                             std::pair{QPalette::Text, QPalette::Base},
                                             std::pair{QPalette::ButtonText, QPalette::Button}}) {
                const QPalette &colours = part->palette();
                QVERIFY2(colours.color(ink).lightness() + 60 < colours.color(paper).lightness(),
                         part->metaObject()->className());
            }
        }
    }
    qApp->setStyleSheet({});
    QApplication::setPalette(before);
}

void MainWindowTest::TextsFromOutsideHoldNothing_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << QStringLiteral("<table><tr><td>").repeated(20);
    QTest::newRow("a long word") << QString(1000000, u'W');
    QTest::newRow("many lines") << QStringLiteral("a\n").repeated(500000);
    QTest::newRow("marks on one letter") << QString(500000, u'\u0301');
}

void MainWindowTest::TextsFromOutsideHoldNothing() {
    QFETCH(const QString, text);
    const QSize size = window_->size();
    window_->HoroscopeInForce().connection.Execute("insert into PersonalDetails (Name) values ('" +
                                                   text.toStdString() + "')");
    // Written as a file, since Qt writes such texts letter by letter, which takes minutes under a sanitizer.
    QFile settings(SettingsFile());
    QVERIFY(settings.open(QFile::WriteOnly));
    const QByteArray value = '"' + QString(text).replace(u'\n', QLatin1String("\\n")).toUtf8() + "\"\n";
    settings.write("[Horo]\nName=" + value + "City=" + value + "Country=" + value);
    settings.close();
    QCOMPARE(QSettings(SettingsFile(), QSettings::IniFormat).value("Horo/City").toString(), text);
    Heartbeat heart;
    Open();
    window_->resize(size);
    Start();
    for (std::size_t view = 0; view < horoscopeViews.size(); ++view) {
        window_->ChooseView(view);
        QTest::qWait(20);
    }
    const MessageBoxAnswer answer;
    ShowError(window_.get(), std::runtime_error(text.toStdString()));
    QVERIFY(answer.Text().size() < 2000);
    QVERIFY2(heart.LongestHold() < 1000, QByteArray::number(heart.LongestHold()));
    QCOMPARE(window_->size(), size);
    const QList<QLabel *> labels = window_->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const bool isPlain = label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()) ||
                             (label->textFormat() == Qt::RichText && !label->text().contains(u"<table>"));
        QVERIFY2(isPlain, qPrintable(label->objectName()));
    }
}

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
