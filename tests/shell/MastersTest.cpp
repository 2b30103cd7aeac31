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
#include "shell/widgets/TextOf.h"
#include "shell/window/UserSettings.h"
#include "store/database/DatabaseFile.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>

using namespace kelvaro;

class MastersTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void ANewPlaceServesAtOnce();
    void EditedPlacesShowAsTold();
    void CountrySearchAnswersAtEachKey();
    void ThousandsOfCitiesAnswerAtEachKey();
    void OnlyDigitsAreTyped();
    void TypedTextsThatNameNoRowAreNotChosen();
    void EnterWalksTheFieldsInOrder();
    void AQuoteIsToldAndNothingTypedIsLost();
    void Letterhead();
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

    static QComboBox *Combo(const QDialog &dialog, const char *name) {
        return dialog.findChild<QComboBox *>(name);
    }

    static MasterGrid *Grid(const QDialog &dialog, const char *name) {
        return dialog.findChild<MasterGrid *>(name);
    }

    /// Types over what stands in a line or a combo box.
    static void Type(const QDialog &dialog, const char *name, const char *keys) {
        auto *field = dialog.findChild<QWidget *>(name);
        auto *box = qobject_cast<QComboBox *>(field);
        field->setFocus();
        (box != nullptr ? box->lineEdit() : qobject_cast<QLineEdit *>(field))->selectAll();
        QTest::keyClicks(field, keys);
    }

    struct Entry {
        const char *field, *keys;
    };
    static void TypeAll(const QDialog &dialog, std::initializer_list<Entry> entries) {
        for (const Entry &entry : entries) {
            Type(dialog, entry.field, entry.keys);
        }
    }

    static void Press(const QDialog &dialog, const char *button) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton);
    }

    static QString Cell(const MasterGrid *grid, int row, int column) {
        return grid->model()->index(row, column).data().toString();
    }

    static int SelectedRow(const MasterGrid *grid) {
        const QModelIndexList rows = grid->selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.front().row();
    }

    std::unique_ptr<QTemporaryDir> folder_;
    store::Connection connection_;
};

void MastersTest::init() {
    connection_.Close();
    folder_ = std::make_unique<QTemporaryDir>();
    const auto file = std::filesystem::path(folder_->path().toStdString()) / store::databaseFileName;
    std::filesystem::copy_file(KELVARO_SEED_DATABASE, file);
    std::filesystem::permissions(file, std::filesystem::perms(0644));
    connection_.Open(file);
}

void MastersTest::ANewPlaceServesAtOnce() {
    MessageBoxAnswer answer;
    NoDisplay display;
    Horoscope horoscope(connection_, display);
    UserSettings settings(folder_->filePath(QStringLiteral("settings.ini")));
    BirthDialog birth(horoscope, settings);
    const auto countries = Open<CountryDialog>();
    QCOMPARE(countries->windowTitle(), QStringLiteral("Country"));
    Type(*countries, "txtAddName", "Zubrowka");
    QTest::keyClick(countries->focusWidget(), Qt::Key_Return);
    QCOMPARE(answer.Text(), QStringLiteral("Details Saved"));
    QCOMPARE(answer.Title(), QStringLiteral("Country"));
    QCOMPARE(answer.Icon(), QMessageBox::Information);
    auto *list = countries->findChild<QListWidget *>("lstboxAdd");
    QCOMPARE(list->item(list->count() - 1)->text(), QStringLiteral("Zubrowka"));
    Press(*countries, "cmdAddCLose");
    QVERIFY(!countries->isVisible());

    const auto zones = Open<TimeZoneDialog>();
    TypeAll(*zones, {{"cbAddCountry", "zub"},
                     {"txtAddCity", "Alpine Time"},
                     {"txtAddLatDeg", "5"},
                     {"txtAddLAtMin", "45"},
                     {"cbAddEW", "e"}});
    Press(*zones, "cmdAddSave");
    QCOMPARE(answer.Count(), 3);
    QCOMPARE(answer.Text(), QStringLiteral("Details successfully saved"));
    QCOMPARE(Cell(Grid(*zones, "mshCity"), 0, 2), QStringLiteral("5.75"));

    const auto cities = Open<CityDialog>();
    TypeAll(*cities, {{"cbAddCountry", "Zub"},
                      {"txtAddCity", "Nebelsbad"},
                      {"txtAddLatDeg", "47"},
                      {"txtAddLAtMin", "8"},
                      {"cbAddNS", "n"},
                      {"txtAddLonDeg", "15"},
                      {"txtAddLonMin", "36"},
                      {"cbAddEW", "E"}});
    Press(*cities, "cmdAddSave");
    QCOMPARE(answer.Text(), QStringLiteral("City Details Saved"));
    QCOMPARE(Cell(Grid(*cities, "mshCity"), 0, 0), QStringLiteral("Nebelsbad"));
    QCOMPARE(Cell(Grid(*cities, "mshCity"), 0, 6), QStringLiteral("36"));

    // The form was filled before any of this was there.
    birth.ReturnFromMaster();
    Type(birth, "Txt_VC_ChartName", "Zero");
    for (const Entry &entry : {Entry{"txt_VC_Country", "zub"}, Entry{"txt_VC_City", "neb"}}) {
        Type(birth, entry.field, entry.keys);
        QTest::keyClick(birth.focusWidget(), Qt::Key_Return);
    }
    QCOMPARE(Combo(birth, "cbTimeZone")->currentText(), QStringLiteral("Alpine Time  (5.75 hrs E)"));
    Press(birth, "cmdSave");
    QCOMPARE(horoscope.state.birth.BirthCountry, std::string("Zubrowka"));
    QCOMPARE(horoscope.state.site.LonMin, 36.0);
    QCOMPARE(horoscope.forms.frm_UserDetails.txtTimeZone, std::string("Alpine Time  (5.75 hrs E)"));
    QVERIFY(!horoscope.forms.Frm_Dasa.mshAntra.rows.empty());
}

void MastersTest::EditedPlacesShowAsTold() {
    MessageBoxAnswer answer;
    const auto countries = Open<CountryDialog>(1);
    auto *list = countries->findChild<QListWidget *>("lstEditBox");
    Type(*countries, "txtEditSearch", "alb");
    QCOMPARE(Line(*countries, "txtEdit")->text(), QStringLiteral("Albania"));
    auto *tabs = countries->findChild<QTabWidget *>("TabStrip1");
    tabs->setCurrentIndex(0);
    tabs->setCurrentIndex(1);
    QCOMPARE(Line(*countries, "txtEdit")->text(), QString());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->currentItem()).center());
    QCOMPARE(Line(*countries, "txtEdit")->text(), QStringLiteral("Albania"));
    Type(*countries, "txtEdit", "Illyria");
    QTest::keyClick(countries->focusWidget(), Qt::Key_Return);
    QCOMPARE(answer.Text(), QStringLiteral("Successfully Updated"));
    QCOMPARE(Line(*countries, "txtEdit")->text(), QString());
    QVERIFY(list->findItems(QStringLiteral("Albania"), Qt::MatchExactly).isEmpty());

    const auto zones = Open<TimeZoneDialog>(1);
    TypeAll(*zones, {{"cbEditCountry", "India"}, {"cbEditCity", "India"}});
    QCOMPARE(Line(*zones, "txtEditLatMIn")->text(), QStringLiteral("5"));
    Press(*zones, "cmdEditUpdate");
    QCOMPARE(answer.Text(), QStringLiteral("Successfully Updated"));
    QCOMPARE(Cell(Grid(*zones, "mshEditCity"), 0, 2), QStringLiteral("5.08"));

    const auto cities = Open<CityDialog>(1);
    TypeAll(*cities, {{"cbEditCountry", "India"}, {"cbEditCity", "Hyderabad (A.P)"}});
    QCOMPARE(Line(*cities, "txtEditLonMin")->text(), QStringLiteral("30"));
    QCOMPARE(Combo(*cities, "cbEditEW")->currentText(), QStringLiteral("E"));
    Line(*cities, "txtEditLatDeg")->clear();
    Press(*cities, "cmdEditUpdate");
    QCOMPARE(answer.Text(), QStringLiteral("Enter Number "));
    QCOMPARE(cities->focusWidget()->objectName(), QStringLiteral("txtEditLatDeg"));
    TypeAll(*cities, {{"txtEditCity", "000 Hyderabad"}, {"txtEditLatDeg", "18"}});
    Press(*cities, "cmdEditUpdate");
    QCOMPARE(answer.Text(), QStringLiteral("Successfully Updated"));
    QCOMPARE(Combo(*cities, "cbEditCity")->currentText(), QStringLiteral("000 Hyderabad"));
    Type(*cities, "cbEditCountry", "Nepal");
    QCOMPARE(Line(*cities, "txtEditCity")->text(), QString());
    QCOMPARE(Combo(*cities, "cbEditEW")->currentText(), QString());
}

void MastersTest::CountrySearchAnswersAtEachKey() {
    MessageBoxAnswer answer;
    const auto dialog = Open<CountryDialog>();
    const auto *list = dialog->findChild<QListWidget *>("lstboxAdd");
    QTest::keyClicks(Line(*dialog, "txtSearch"), QStringLiteral("iNd"));
    QCOMPARE(list->currentItem()->text(), QStringLiteral("India"));
    QTest::keyClick(Line(*dialog, "txtSearch"), 'o');
    QCOMPARE(list->currentItem()->text(), QStringLiteral("Indonesia"));
    QTest::keyClick(Line(*dialog, "txtSearch"), 'x');
    QCOMPARE(answer.Text(), QStringLiteral("No Such Country Exists"));
    QCOMPARE(list->currentItem()->text(), QStringLiteral("Indonesia"));
    // The key that closes the box is released in the line.
    QTest::keyRelease(Line(*dialog, "txtSearch"), Qt::Key_Return);
    QCOMPARE(answer.Count(), 1);
    Line(*dialog, "txtSearch")->selectAll();
    QTest::keyClick(Line(*dialog, "txtSearch"), Qt::Key_Backspace);
    QCOMPARE(list->currentRow(), 0);
    QCOMPARE(answer.Count(), 1);
}

void MastersTest::ThousandsOfCitiesAnswerAtEachKey() {
    MessageBoxAnswer answer;
    const auto dialog = Open<CityDialog>(2);
    Press(*dialog, "cmdFind");
    QCOMPARE(answer.Text(), QStringLiteral("Enter City Name to Search"));
    Type(*dialog, "cmbCountry", "India");
    const MasterGrid *grid = Grid(*dialog, "mshViewCity");
    QCOMPARE(grid->model()->rowCount(), 7248);
    QElapsedTimer clock;
    clock.start();
    Type(*dialog, "txtCityName", "HYDERABAD (a");
    QCOMPARE(Cell(grid, SelectedRow(grid), 0), QStringLiteral("Hyderabad (A.P)"));
    QVERIFY(grid->viewport()->rect().contains(
        grid->visualRect(grid->model()->index(SelectedRow(grid), 0)).center()));
    constexpr qint64 keys = 12;
    constexpr int stepsDown = 100;
    for (int step = 0; step < stepsDown; ++step) {
        QTest::keyClick(Grid(*dialog, "mshViewCity"), Qt::Key_PageDown);
        grid->viewport()->repaint();
    }
    // A twentieth of a second for a key, or a page, is felt as at once.
    QVERIFY2(clock.elapsed() < (keys + stepsDown) * 50, qPrintable(QString::number(clock.elapsed())));

    Type(*dialog, "txtCityName", "xyz");
    QCOMPARE(SelectedRow(grid), -1);
    QCOMPARE(answer.Count(), 1);
    Press(*dialog, "cmdFind");
    QCOMPARE(answer.Text(), QStringLiteral("No matches found for the City Name entered"));
}

void MastersTest::OnlyDigitsAreTyped() {
    const auto cities = Open<CityDialog>();
    const auto zones = Open<TimeZoneDialog>();
    QApplication::clipboard()->setText(QStringLiteral("-5.5"));
    const auto check = [](const QDialog &dialog, std::initializer_list<const char *> names) {
        for (const char *name : names) {
            QTest::keyClicks(Line(dialog, name), QStringLiteral("-1a.2 e"));
            QTest::keyClick(Line(dialog, name), Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(Line(dialog, name)->text(), QStringLiteral("12"));
            QTest::keyClick(Line(dialog, name), Qt::Key_Backspace);
            QCOMPARE(Line(dialog, name)->text(), QStringLiteral("1"));
        }
    };
    check(*cities, {"txtAddLatDeg", "txtAddLAtMin", "txtAddLonDeg", "txtAddLonMin", "txtEditLatDeg",
                    "txtEditLatMIn", "txtEditLonDeg", "txtEditLonMin"});
    check(*zones, {"txtAddLatDeg", "txtAddLAtMin", "txtEditLatDeg", "txtEditLatMIn"});
    Type(*cities, "txtAddCity", "Area 51-b");
    QCOMPARE(Line(*cities, "txtAddCity")->text(), QStringLiteral("Area 51-b"));
}

void MastersTest::TypedTextsThatNameNoRowAreNotChosen() {
    MessageBoxAnswer answer;
    const auto dialog = Open<CityDialog>();
    Type(*dialog, "cbAddCountry", "India");
    QCOMPARE(Grid(*dialog, "mshCity")->model()->rowCount(), 7248);
    QTest::keyClicks(Combo(*dialog, "cbAddCountry"), QStringLiteral("x"));
    QCOMPARE(Grid(*dialog, "mshCity")->model()->rowCount(), 0);
    Press(*dialog, "cmdAddSave");
    QCOMPARE(answer.Text(), QStringLiteral("Select Country "));
    QCOMPARE(dialog->focusWidget()->objectName(), QStringLiteral("cbAddCountry"));
}

void MastersTest::EnterWalksTheFieldsInOrder() {
    struct Walk {
        std::unique_ptr<QDialog> dialog;
        QStringList fields;
    };
    const std::array<Walk, 5> walks{{
        {Open<CityDialog>(),
         {"cbAddCountry", "txtAddCity", "txtAddLatDeg", "txtAddLAtMin", "cbAddNS", "txtAddLonDeg",
          "txtAddLonMin", "cbAddEW", "cmdAddSave"}},
        {Open<CityDialog>(1),
         {"cbEditCountry", "cbEditCity", "txtEditCity", "txtEditLatDeg", "txtEditLatMIn", "cbEditNS",
          "txtEditLonDeg", "txtEditLonMin", "cbEditEW", "cmdEditUpdate"}},
        {Open<TimeZoneDialog>(),
         {"cbAddCountry", "txtAddCity", "txtAddLatDeg", "txtAddLAtMin", "cbAddEW", "cmdAddSave"}},
        {Open<TimeZoneDialog>(1),
         {"cbEditCountry", "cbEditCity", "txtEditCity", "txtEditLatDeg", "txtEditLatMIn", "cbEditEW",
          "cmdEditUpdate"}},
        {Open<PersonalInfoDialog>(),
         {"txtName", "txtAdd", "txtAdd2", "txtCity", "txtCountry", "txtZip", "txtPhone", "txtEmail"}},
    }};
    for (const Walk &walk : walks) {
        walk.dialog->findChild<QWidget *>(walk.fields.front())->setFocus();
        for (const QString &field : walk.fields) {
            QCOMPARE(walk.dialog->focusWidget()->objectName(), field);
            if (field != walk.fields.back()) {
                QTest::keyClick(walk.dialog->focusWidget(), Qt::Key_Return);
            }
        }
    }
    MessageBoxAnswer answer;
    QTest::keyClick(walks[0].dialog->focusWidget(), Qt::Key_Return);
    QCOMPARE(answer.Text(), QStringLiteral("Select Country "));
}

void MastersTest::AQuoteIsToldAndNothingTypedIsLost() {
    MessageBoxAnswer answer;
    const auto dialog = Open<CountryDialog>();
    const int count = dialog->findChild<QListWidget *>("lstboxAdd")->count();
    Type(*dialog, "txtAddName", "Cote d'Ivoire");
    Press(*dialog, "cmdAddSave");
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY(answer.Text().contains(QStringLiteral("Cote d'Ivoire")));
    QCOMPARE(Line(*dialog, "txtAddName")->text(), QStringLiteral("Cote d'Ivoire"));
    QCOMPARE(static_cast<int>(store::PlaceLists(connection_).Countries().size()), count);
}

void MastersTest::Letterhead() {
    MessageBoxAnswer answer;
    auto dialog = Open<PersonalInfoDialog>();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Edit Personal Info"));
    QCOMPARE(Line(*dialog, "txtName")->text(), QStringLiteral("Kelvaro Technologies Pvt Ltd"));
    Press(*dialog, "cmdEdit");
    QCOMPARE(dialog->focusWidget()->objectName(), QStringLiteral("txtName"));
    TypeAll(*dialog, {{"txtName", "Asha Rao"}, {"txtZip", "411001"}, {"txtEmail", "asha@example.org"}});
    Press(*dialog, "cmdSave");
    QCOMPARE(answer.Text(), QStringLiteral("Details Saved"));
    dialog = Open<PersonalInfoDialog>();
    QCOMPARE(Line(*dialog, "txtZip")->text(), QStringLiteral("411001"));
    QCOMPARE(Line(*dialog, "txtEmail")->text(), QStringLiteral("asha@example.org"));
    Press(*dialog, "cmdNew");
    QCOMPARE(Line(*dialog, "txtName")->text(), QString());
    QCOMPARE(store::ReadPersonalDetails(connection_).Zipcode, std::string());
    Press(*dialog, "CMDCANCEl");
    QCOMPARE(dialog->result(), static_cast<int>(QDialog::Rejected));
}

void MastersTest::EveryNoticeNamesAFieldOfItsDialog() {
    const auto hasField = [](const QDialog &dialog, const auto &rules) {
        for (const auto &rule : rules) {
            const bool isThere =
                rule.focus.empty() || dialog.findChild<QWidget *>(TextOf(rule.focus)) != nullptr;
            QVERIFY2(isThere, qPrintable(dialog.objectName() + TextOf(rule.focus)));
        }
    };
    NoDisplay display;
    Horoscope horoscope(connection_, display);
    UserSettings settings(folder_->filePath(QStringLiteral("settings.ini")));
    hasField(BirthDialog(horoscope, settings), birthRules);
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

QTEST_MAIN(MastersTest)
#include "MastersTest.moc"
