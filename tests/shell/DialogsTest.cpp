#include "horoscope/Horoscope.h"
#include "horoscope/NoDisplay.h"
#include "horoscope/entry/BirthStorage.h"
#include "shell/dialogs/BirthDialog.h"
#include "shell/dialogs/ChartListDialog.h"
#include "shell/dialogs/CityDialog.h"
#include "shell/dialogs/CountryDialog.h"
#include "shell/dialogs/MasterGrid.h"
#include "shell/dialogs/PersonalInfoDialog.h"
#include "shell/dialogs/PreferencesDialog.h"
#include "shell/dialogs/TimeConverterDialog.h"
#include "shell/dialogs/TimeZoneDialog.h"
#include "shell/window/UserSettings.h"
#include "tests/shell/DialogFixture.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QListWidget>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabWidget>

#include <memory>

using namespace kelvaro;
using namespace Qt::StringLiterals;

/// The dialogs beside the form of birth details, and what all of them tell.
class DialogsTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void ANewPlaceServesAtOnce();
    void EditedPlacesShowAsTold();
    void CountrySearchAnswersAtEachKey();
    void ThousandsOfCitiesAnswerAtEachKey();
    void OnlyDigitsAreTyped();
    void Letterhead();
    void BirthTimeBecomesIshtaGhatiAndComesBack();
    void AConverterTellsFaultsAndItsFieldWaits();
    void PreferencesAreSavedAppliedOrDropped();
    void FaultyCustomAyanamsaIsToldAndKept();
    void EveryNoticeNamesAFieldOfItsDialog();

private:
    template <typename Dialog> std::unique_ptr<Dialog> Open(int tab = 0) {
        auto dialog = std::make_unique<Dialog>(connection_);
        dialog->show();
        if (auto *tabs = dialog->template findChild<QTabWidget *>("TabStrip1")) {
            tabs->setCurrentIndex(tab);
        }
        return dialog;
    }

    static QLineEdit *Line(const QDialog &dialog, const char *name) {
        return dialog.findChild<QLineEdit *>(name);
    }

    static MasterGrid *Grid(const QDialog &dialog, const char *name) {
        return dialog.findChild<MasterGrid *>(name);
    }

    /// Types into field after field, each left by Enter; after the last one Enter presses the button.
    static void EnterAll(const QDialog &dialog, std::initializer_list<const char *> texts) {
        for (const char *text : texts) {
            Enter(dialog, text);
        }
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    }

    static QString Cell(const MasterGrid *grid, int row, int column) {
        return grid->model()->index(row, column).data().toString();
    }

    static int SelectedRow(const MasterGrid *grid) {
        const QModelIndexList rows = grid->selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.front().row();
    }

    store::OnLoadClass StoredPreferences() {
        store::OnLoadClass preferences;
        preferences.FnPreferences(connection_);
        return preferences;
    }

    std::unique_ptr<SeedFolder> folder_;
    store::Connection connection_;
    NoDisplay display_;
};

void DialogsTest::init() {
    connection_.Close();
    folder_ = std::make_unique<SeedFolder>();
    connection_.Open(folder_->file);
}

void DialogsTest::ANewPlaceServesAtOnce() {
    MessageBoxAnswer answer;
    Horoscope horoscope(connection_, display_);
    UserSettings settings(folder_->settings);
    DiscardedBirths discarded;
    BirthDialog birth(horoscope, settings, discarded);
    const auto countries = Open<CountryDialog>();
    QCOMPARE(countries->windowTitle(), u"Country"_s);
    Type(*countries, "txtAddName", "Cote d'Ivoire");
    Press(*countries, "cmdAddSave");
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY(answer.Text().contains(u"Cote d'Ivoire"_s));
    QCOMPARE(TextIn(*countries, "txtAddName"), u"Cote d'Ivoire"_s);
    Type(*countries, "txtAddName", "Zubrowka");
    QTest::keyClick(countries->focusWidget(), Qt::Key_Return);
    QCOMPARE(answer.Text(), u"Details Saved"_s);
    QCOMPARE(answer.Title(), u"Country"_s);
    QCOMPARE(answer.Icon(), QMessageBox::Information);
    auto *list = countries->findChild<QListWidget *>("lstboxAdd");
    QCOMPARE(list->item(list->count() - 1)->text(), u"Zubrowka"_s);
    Press(*countries, "cmdAddCLose");
    QVERIFY(!countries->isVisible());

    const auto zones = Open<TimeZoneDialog>();
    EnterAll(*zones, {"zub", "Alpine Time", "5", "45", "e"});
    QCOMPARE(answer.Count(), 4);
    QCOMPARE(answer.Text(), u"Details successfully saved"_s);
    QCOMPARE(Cell(Grid(*zones, "mshCity"), 0, 2), u"5.75"_s);

    const auto cities = Open<CityDialog>();
    cities->StartIn(101);
    cities->findChild<QTabWidget *>()->setCurrentIndex(1);
    cities->findChild<QTabWidget *>()->setCurrentIndex(0);
    QCOMPARE(TextIn(*cities, "cbAddCountry") + TextIn(*cities, "cbEditCountry"), u"IndiaIndia"_s);
    cities->findChild<QComboBox *>("cbAddCountry")->setFocus();
    cities->findChild<QComboBox *>("cbAddCountry")->lineEdit()->selectAll();
    EnterAll(*cities, {"Zub", "Nebelsbad", "47", "8", "n", "15", "36", "E"});
    QCOMPARE(answer.Text(), u"City Details Saved"_s);
    QCOMPARE(FocusIn(*cities), u"txtAddCity"_s);
    QString row;
    for (int column = 0; column < 7; ++column) {
        row += Cell(Grid(*cities, "mshCity"), 0, column) + u' ';
    }
    QCOMPARE(row, u"Nebelsbad 47 N 8 15 E 36 "_s);
    // A text that names no row is not chosen.
    Type(*cities, "cbAddCountry", "Zubrowkax");
    QCOMPARE(Grid(*cities, "mshCity")->model()->rowCount(), 0);
    Press(*cities, "cmdAddSave");
    QCOMPARE(answer.Text() + FocusIn(*cities), u"Select Country cbAddCountry"_s);

    // The form was filled before any of this was there.
    birth.ReturnFromMaster();
    Type(birth, "Txt_VC_ChartName", "Zero");
    Type(birth, "txt_VC_Country", "");
    EnterAll(birth, {"zub", "neb"});
    QCOMPARE(TextIn(birth, "cbTimeZone"), u"Alpine Time  (5.75 hrs E)"_s);
    Press(birth, "cmdSave");
    QCOMPARE(horoscope.state.birth.BirthCountry, std::string("Zubrowka"));
    QCOMPARE(horoscope.state.site.LonMin, 36.0);
    QVERIFY(!horoscope.forms.Frm_Dasa.mshAntra.rows.empty());
}

void DialogsTest::EditedPlacesShowAsTold() {
    MessageBoxAnswer answer;
    const auto countries = Open<CountryDialog>(1);
    auto *list = countries->findChild<QListWidget *>("lstEditBox");
    Type(*countries, "txtEditSearch", "alb");
    QCOMPARE(TextIn(*countries, "txtEdit"), u"Albania"_s);
    auto *tabs = countries->findChild<QTabWidget *>("TabStrip1");
    tabs->setCurrentIndex(0);
    tabs->setCurrentIndex(1);
    QCOMPARE(TextIn(*countries, "txtEdit"), QString());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->currentItem()).center());
    Type(*countries, "txtEdit", "Illyria");
    QTest::keyClick(countries->focusWidget(), Qt::Key_Return);
    QCOMPARE(answer.Text(), u"Successfully Updated"_s);
    QCOMPARE(TextIn(*countries, "txtEdit"), QString());
    QVERIFY(list->findItems(u"Albania"_s, Qt::MatchExactly).isEmpty());

    const auto zones = Open<TimeZoneDialog>(1);
    Type(*zones, "cbEditCountry", "");
    EnterAll(*zones, {"India", "India", "Raj Time", "", "", "w"});
    QCOMPARE(answer.Text(), u"Successfully Updated"_s);
    QCOMPARE(TextIn(*zones, "cbEditCity") + TextIn(*zones, "txtEditLatMIn"), u"Raj Time5"_s);
    QCOMPARE(Cell(Grid(*zones, "mshEditCity"), 0, 2) + Cell(Grid(*zones, "mshEditCity"), 0, 3), u"5.08W"_s);

    const auto cities = Open<CityDialog>(1);
    Type(*cities, "cbEditCountry", "India");
    Type(*cities, "cbEditCity", "Hyderabad (A.P)");
    QCOMPARE(TextIn(*cities, "txtEditLonMin") + TextIn(*cities, "cbEditEW"), u"30E"_s);
    Line(*cities, "txtEditLatDeg")->clear();
    Press(*cities, "cmdEditUpdate");
    QCOMPARE(answer.Text(), u"Enter Number "_s);
    QCOMPARE(FocusIn(*cities), u"txtEditLatDeg"_s);
    Type(*cities, "txtEditCity", "");
    EnterAll(*cities, {"000 Hyderabad", "18", "21", "s", "79", "31", "w"});
    QCOMPARE(answer.Text(), u"Successfully Updated"_s);
    QCOMPARE(TextIn(*cities, "cbEditCity"), u"000 Hyderabad"_s);
    store::CityFields stored;
    store::CityMaster(connection_).Show({"000 Hyderabad", 1}, stored);
    QCOMPARE(stored, (store::CityFields{0, 0, "000 Hyderabad", "18", "21", "S", "79", "31", "W"}));
    Type(*cities, "cbEditCountry", "Nepal");
    QCOMPARE(TextIn(*cities, "txtEditCity") + TextIn(*cities, "cbEditEW"), QString());
}

void DialogsTest::CountrySearchAnswersAtEachKey() {
    MessageBoxAnswer answer;
    const auto dialog = Open<CountryDialog>();
    const auto *list = dialog->findChild<QListWidget *>("lstboxAdd");
    QTest::keyClicks(Line(*dialog, "txtSearch"), u" iNd"_s);
    QCOMPARE(list->currentItem()->text(), u"India"_s);
    QTest::keyClick(Line(*dialog, "txtSearch"), 'o');
    QCOMPARE(list->currentItem()->text(), u"Indonesia"_s);
    QTest::keyClick(Line(*dialog, "txtSearch"), 'x');
    QCOMPARE(answer.Text(), u"No Such Country Exists"_s);
    QCOMPARE(list->currentItem()->text(), u"Indonesia"_s);
    // The key that closes the box is released in the line.
    QTest::keyRelease(Line(*dialog, "txtSearch"), Qt::Key_Return);
    QCOMPARE(answer.Count(), 1);
    Line(*dialog, "txtSearch")->selectAll();
    QTest::keyClick(Line(*dialog, "txtSearch"), Qt::Key_Backspace);
    QCOMPARE(list->currentRow(), 0);
    QCOMPARE(answer.Count(), 1);
}

void DialogsTest::ThousandsOfCitiesAnswerAtEachKey() {
    MessageBoxAnswer answer;
    const auto dialog = Open<CityDialog>(2);
    Press(*dialog, "cmdFind");
    QCOMPARE(answer.Text(), u"Enter City Name to Search"_s);
    Type(*dialog, "cmbCountry", "India");
    const MasterGrid *grid = Grid(*dialog, "mshViewCity");
    QCOMPARE(grid->model()->rowCount(), 7248);
    QElapsedTimer clock;
    clock.start();
    Type(*dialog, "txtCityName", " HYDERABAD (a");
    QCOMPARE(Cell(grid, SelectedRow(grid), 0), u"Hyderabad (A.P)"_s);
    QVERIFY(grid->viewport()->rect().contains(
        grid->visualRect(grid->model()->index(SelectedRow(grid), 0)).center()));
    // A tenth of a second for each of the keys is felt as at once.
    QVERIFY2(clock.elapsed() < 1200, qPrintable(QString::number(clock.elapsed())));

    Type(*dialog, "txtCityName", "xyz");
    QCOMPARE(SelectedRow(grid), -1);
    QCOMPARE(answer.Count(), 1);
    Press(*dialog, "cmdFind");
    QCOMPARE(answer.Text(), u"No matches found for the City Name entered"_s);
}

void DialogsTest::OnlyDigitsAreTyped() {
    const auto cities = Open<CityDialog>();
    const auto zones = Open<TimeZoneDialog>();
    QApplication::clipboard()->setText(u"-5.5"_s);
    const QRegularExpression numbers(u"txt.*(Deg|MIn)"_s, QRegularExpression::CaseInsensitiveOption);
    const auto lines = cities->findChildren<QLineEdit *>(numbers) + zones->findChildren<QLineEdit *>(numbers);
    QCOMPARE(lines.size(), 8 + 4);
    for (QLineEdit *line : lines) {
        QTest::keyClicks(line, u"-1a.2 e"_s);
        QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(line->text(), u"12"_s);
        QTest::keyClick(line, Qt::Key_Backspace);
        QCOMPARE(line->text(), u"1"_s);
    }
    Type(*cities, "txtAddCity", "Area 51-b");
    QCOMPARE(TextIn(*cities, "txtAddCity"), u"Area 51-b"_s);
    QApplication::clipboard()->setText(QString(1000, u'x'));
    QTest::keyClick(Line(*cities, "txtAddCity"), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(TextIn(*cities, "txtAddCity").size(), 255);
}

void DialogsTest::Letterhead() {
    MessageBoxAnswer answer;
    auto dialog = Open<PersonalInfoDialog>();
    QCOMPARE(dialog->windowTitle(), u"Edit Personal Info"_s);
    QCOMPARE(TextIn(*dialog, "txtName"), u"Kelvaro Technologies Pvt Ltd"_s);
    Press(*dialog, "cmdEdit");
    QCOMPARE(FocusIn(*dialog), u"txtName"_s);
    Line(*dialog, "txtName")->selectAll();
    for (const char *text :
         {"Asha Rao", "1 Hill Road", "Second Floor", "Pune", "India", "411001", "020 1", "a@b"}) {
        Enter(*dialog, text);
    }
    Press(*dialog, "cmdSave");
    QCOMPARE(answer.Text(), u"Details Saved"_s);
    const store::PersonalDetails letterhead{"Asha Rao", "1 Hill Road", "Second Floor", "Pune",
                                            "India",    "411001",      "020 1",        "a@b"};
    QCOMPARE(store::ReadPersonalDetails(connection_), letterhead);
    dialog = Open<PersonalInfoDialog>();
    QCOMPARE(TextIn(*dialog, "txtZip") + TextIn(*dialog, "txtEmail"), u"411001a@b"_s);
    Press(*dialog, "cmdNew");
    QCOMPARE(TextIn(*dialog, "txtName"), QString());
    QCOMPARE(store::ReadPersonalDetails(connection_).Zipcode, std::string());
    Press(*dialog, "CMDCANCEl");
    QCOMPARE(dialog->result(), static_cast<int>(QDialog::Rejected));
}

void DialogsTest::BirthTimeBecomesIshtaGhatiAndComesBack() {
    Horoscope horoscope(connection_, display_);
    const MessageBoxAnswer answer;
    IshtaGhatiDialog there(horoscope);
    there.show();
    QVERIFY(QTest::qWaitForWindowExposed(&there));
    for (const char *text : {"14", "jul", "1965", "02", "15"}) {
        Enter(there, text);
    }
    there.findChild<QRadioButton *>(u"Opt_PM"_s)->setFocus();
    QTest::keyClick(there.focusWidget(), Qt::Key_Space);
    QTest::keyClick(there.focusWidget(), Qt::Key_Return);
    Enter(there, "india");
    Enter(there, "hyderabad (a");
    QTest::keyClick(there.focusWidget(), Qt::Key_Return); // the one zone of the country stands there
    QTest::keyClick(there.focusWidget(), Qt::Key_Return); // the button
    QCOMPARE(answer.Text(), QString());
    // The sun rose at 05:50, 505 minutes before.
    QCOMPARE(TextIn(there, "txtIshtaGhati"), u"Ishta Ghati : 21:2:30"_s);
    QTest::mouseClick(there.findChild<QRadioButton *>(u"Opt_AM"_s), Qt::LeftButton);
    QCOMPARE(TextIn(there, "txtIshtaGhati"), QString());
    Press(there, "cmdSubmit");
    // 02:15 in the morning counts from the sunrise of the day before, 1,225 minutes.
    QVERIFY2(TextIn(there, "txtIshtaGhati").startsWith(u"Ishta Ghati : 51:"_s),
             qPrintable(TextIn(there, "txtIshtaGhati")));

    BirthTimeDialog back(horoscope);
    back.show();
    QVERIFY(QTest::qWaitForWindowExposed(&back));
    for (const char *text : {"14", "jul", "1965", "21", "2.5", "india", "hyderabad (a", "", ""}) {
        Enter(back, text);
    }
    QCOMPARE(TextIn(back, "txtBirthTime"), u"Birth Time : 02:15 PM"_s);
}

void DialogsTest::AConverterTellsFaultsAndItsFieldWaits() {
    Horoscope horoscope(connection_, display_);
    BirthTimeDialog dialog(horoscope);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const MessageBoxAnswer answer;
    Press(dialog, "cmdSubmit");
    QCOMPARE(answer.Text() + FocusIn(dialog), u"Select CountryCmb_VP_Country"_s);
    Enter(dialog, "india");
    Type(dialog, "Cmb_VP_City", "delhi");
    Type(dialog, "txt_Date", "31");
    Type(dialog, "txt_Month", "feb");
    Press(dialog, "cmdSubmit");
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY2(answer.Text().contains(u"31/2/"_s), qPrintable(answer.Text()));

    IshtaGhatiDialog clock(horoscope);
    clock.show();
    QVERIFY(QTest::qWaitForWindowExposed(&clock));
    Type(clock, "cbHour", "13");
    QTest::mouseClick(clock.findChild<QRadioButton *>(u"Opt_PM"_s), Qt::LeftButton);
    Press(clock, "cmdSubmit");
    QCOMPARE(answer.Text() + FocusIn(clock), u"Enter Correct TimecbHour"_s);
}

void DialogsTest::PreferencesAreSavedAppliedOrDropped() {
    Horoscope horoscope(connection_, display_);
    connection_.Execute("update Preference set Bhava = 'Not Equal'");
    PreferencesDialog saved(horoscope);
    saved.show();
    const auto *bhava = saved.findChild<QComboBox *>("cbBhava");
    QCOMPARE(bhava->count(), 1);
    QCOMPARE(bhava->itemText(0) + bhava->currentText(), u"Equal HousePlacidius"_s);
    Type(saved, "cbAyanamsa", "kr");
    Type(saved, "cbLanguage", "S");
    Type(saved, "cbChart", "no");
    Press(saved, "cmdSave");
    QVERIFY(!saved.isVisible());
    QCOMPARE(horoscope.forms.frm_UserDetails.txtLagna, std::string("Tula"));
    QCOMPARE(horoscope.forms.frm_rasi.VisibleFrame, ChartStyle::North);
    QCOMPARE(StoredPreferences().clsLanguage + StoredPreferences().clsBhava,
             std::string("SanskritNot Equal"));
    PreferencesDialog applied(horoscope);
    applied.show();
    QCOMPARE(TextIn(applied, "cbAyanamsa"), u"Krishnamoorthy Ayanamsa"_s);
    Type(applied, "cbAyanamsa", "T");
    Type(applied, "Cbdays", "360");
    Press(applied, "Command1");
    QVERIFY(!applied.isVisible());
    PreferencesDialog closed(horoscope);
    closed.show();
    Type(closed, "cbAyanamsa", "R");
    Press(closed, "CMDCANCEl");
    QCOMPARE(horoscope.state.preferences.DaysInYear, 360.0);
    QCOMPARE(horoscope.state.preferences.AyanamsaName, std::string("Sayana"));
    QCOMPARE(StoredPreferences().clsAyanamsa, std::string("KP"));
}

void DialogsTest::FaultyCustomAyanamsaIsToldAndKept() {
    MessageBoxAnswer answer;
    Horoscope horoscope(connection_, display_);
    PreferencesDialog dialog(horoscope);
    dialog.show();
    QVERIFY(!dialog.findChild<QWidget *>("FRAMECUSTOM")->isVisible());
    Type(dialog, "cbAyanamsa", "Cu");
    Type(dialog, "txtZero", "2004");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QCOMPARE(FocusIn(dialog), u"txtPogression"_s);
    Type(dialog, "txtPogression", "50");
    Press(dialog, "cmdSave");
    QCOMPARE(answer.Title() + answer.Text(), u"PreferencesEnter Zero Year Less than current Year "_s);
    QVERIFY(dialog.isVisible());
    QCOMPARE(TextIn(dialog, "txtZero") + FocusIn(dialog), u"2004txtZero"_s);
    Type(dialog, "txtZero", "397");
    Type(dialog, "cbBhava", "Placidius");
    Press(dialog, "cmdSave");
    QCOMPARE(answer.Text() + FocusIn(dialog), u"Choose one of the list for BhavacbBhava"_s);
    Type(dialog, "cbBhava", "eq");
    Press(dialog, "cmdSave");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(horoscope.state.preferences.YearInForce + StoredPreferences().clsProgress, 447.0);
}

void DialogsTest::EveryNoticeNamesAFieldOfItsDialog() {
    const auto hasField = [](const QDialog &dialog, const auto &rules) {
        for (const auto &rule : rules) {
            const bool isThere =
                rule.focus.empty() || dialog.findChild<QWidget *>(TextOf(rule.focus)) != nullptr;
            QVERIFY2(isThere, qPrintable(dialog.objectName() + TextOf(rule.focus)));
        }
    };
    Horoscope horoscope(connection_, display_);
    UserSettings settings(folder_->settings);
    DiscardedBirths discarded;
    hasField(BirthDialog(horoscope, settings, discarded), birthRules);
    hasField(IshtaGhatiDialog(horoscope), clockTimeRules);
    hasField(BirthTimeDialog(horoscope), ghatiRules);
    const PreferencesDialog preferences(horoscope);
    hasField(preferences, customRules);
    hasField(preferences, choiceRules);
    const CountryDialog countries(connection_);
    hasField(countries, store::countryAddRules);
    hasField(countries, store::countryRenameRules);
    const TimeZoneDialog zones(connection_);
    hasField(zones, store::zoneAddRules);
    hasField(zones, store::zoneUpdateRules);
    const CityDialog cities(connection_);
    hasField(cities, store::cityAddRules);
    hasField(cities, store::cityAddRanges);
    hasField(cities, store::cityUpdateRules);
    hasField(cities,
             std::array{*store::CityMaster::Find({}, "").notice, *store::CityMaster::Find({}, "x").notice});
    hasField(ChartListDialog(connection_), std::array{NoChartChosen()});
}

QTEST_MAIN(DialogsTest)
#include "DialogsTest.moc"
