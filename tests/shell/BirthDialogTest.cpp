#include "shell/dialogs/BirthDialog.h"

#include "horoscope/Horoscope.h"
#include "horoscope/NoDisplay.h"
#include "runtime/MomentText.h"
#include "runtime/RuntimeError.h"
#include "shell/dialogs/ChartListDialog.h"
#include "shell/window/UserSettings.h"
#include "store/database/DatabaseFile.h"
#include "store/database/Recordset.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include <filesystem>
#include <functional>
#include <memory>

using namespace kelvaro;

namespace {

/// A screen of which only the form of birth details is there.
class FormOnly : public NoDisplay {
public:
    void AdvanceStatusBar() override {
        if (atEachAdvance) {
            atEachAdvance();
        }
    }
    void HideOpenChart() override { form->hide(); }
    void RunFailed(std::string_view step, std::string_view cause) override {
        failure.append(step).append(": ").append(cause);
    }

    BirthDialog *form = nullptr;
    std::string failure;
    std::function<void()> atEachAdvance;
};

} // namespace

class BirthDialogTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void KeysAloneStateABirth();
    void FaultyFieldsAreTold_data();
    void FaultyFieldsAreTold();
    void PlacesAreTakenWhenTheFieldIsLeft();
    void SavedChartIsFoundChangedAndDeleted();
    void LastChartComesBack();
    void RefusedSaveLeavesTheFormAsTyped();
    void NoonIsRemarkedUpon();
    void MasterComesAndGoes();
    void NothingStartsDuringARun();
    void SettingsAreWrittenTogetherOrNotAtAll();

private:
    template <typename Control> Control *Find(const char *name) const {
        return form_->findChild<Control *>(QString::fromLatin1(name));
    }
    QComboBox *Combo(const char *name) const { return Find<QComboBox>(name); }
    void Run(const char *action) const { Find<QAction>(action)->trigger(); }

    /// The text of a combo box or a line.
    QString Text(const char *name) const {
        const QComboBox *box = Combo(name);
        return box == nullptr ? Find<QLineEdit>(name)->text() : box->currentText();
    }

    QString Focus() const { return form_->focusWidget()->objectName(); }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(form_->focusWidget(), key, modifiers);
    }

    /// Types into the field with the focus and goes on with Enter.
    void Enter(const QString &keys) const {
        QTest::keyClicks(form_->focusWidget(), keys);
        Key(Qt::Key_Return);
    }

    /// States the birth of 14 July 1965, 2:15 PM at Hyderabad on the emptied form, up to the button OK.
    void EnterBirth(const char *name = "Velnesh") const {
        Run("mnu_New");
        for (const char *text : {name, "m", "14", "jul", "1965", "02", "15"}) {
            Enter(QString::fromUtf8(text));
        }
        Find<QRadioButton>("Opt_PM")->setChecked(true);
        for (const char *text : {"", "india", "hyderabad (a", "", "", ""}) {
            Enter(QString::fromUtf8(text));
        }
    }

    /// Puts a text into a field without going through its keys, as the clipboard does.
    void Put(const QString &field, const QString &text) const {
        const QByteArray name = field.toLatin1();
        if (QComboBox *box = Combo(name)) {
            box->setEditText(text);
        } else {
            Find<QLineEdit>(name)->setText(text);
        }
    }

    ChartListDialog *List() const { return form_->findChild<ChartListDialog *>(); }
    QListWidget *Charts() const { return List()->findChild<QListWidget *>(); }

    QStringList ChartsListed() const {
        QStringList texts;
        for (int row = 0; row < Charts()->count(); ++row) {
            texts << Charts()->item(row)->text();
        }
        return texts;
    }

    QString First(const char *statement) const {
        store::Recordset rows;
        rows.Open(statement, program_->connection);
        return QString::fromStdString(rows.Text(std::size_t{0}));
    }

    /// What a run of the program owns.
    struct Program {
        Program(const std::filesystem::path &file, const QString &settingsFile) : settings(settingsFile) {
            connection.Open(file);
        }

        store::Connection connection;
        FormOnly display;
        Horoscope horoscope{connection, display};
        UserSettings settings;
    };

    void Start() {
        form_.reset();
        program_ = std::make_unique<Program>(file_, folder_->filePath(QStringLiteral("settings.ini")));
        OpenForm();
    }

    void OpenForm() {
        form_ = std::make_unique<BirthDialog>(program_->horoscope, program_->settings);
        program_->display.form = form_.get();
        form_->setModal(true);
        form_->show();
        // Fields of a window that is not active are not left.
        QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    }

    const HoroscopeState &State() const { return program_->horoscope.state; }

    std::unique_ptr<QTemporaryDir> folder_;
    std::filesystem::path file_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<BirthDialog> form_;
};

void BirthDialogTest::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    file_ = std::filesystem::path(folder_->path().toStdString()) / store::databaseFileName;
    std::filesystem::copy_file(KELVARO_SEED_DATABASE, file_);
    std::filesystem::permissions(file_, std::filesystem::perms(0644));
    Start();
}

void BirthDialogTest::cleanup() {
    form_.reset();
    program_.reset();
}

void BirthDialogTest::KeysAloneStateABirth() {
    QStringList toolTips;
    for (const QAction *action : Find<QToolBar>("tbrMirvane")->actions()) {
        toolTips << action->objectName() + QStringLiteral(": ") + action->toolTip();
    }
    QCOMPARE(toolTips.join(QStringLiteral(", ")),
             QStringLiteral("new: New BrithDetails, open: Open Birthdetails, save: Save Details, "
                            "delete: Delete Details, close: Close"));
    QCOMPARE(Focus(), QStringLiteral("Txt_VC_ChartName"));
    Key(Qt::Key_N, Qt::ControlModifier);
    const struct {
        const char *field, *keys;
    } steps[] = {{"Txt_VC_ChartName", "Uma"},
                 {"cbGender", "fe"},
                 {"txt_Date", "14"},
                 {"txt_Month", "jul"},
                 {"txt_Year", "1-9y65"},
                 {"cbHour", "02"},
                 {"cbMins", "15"},
                 {"Opt_", ""},
                 {"txt_VC_Country", "india"},
                 {"txt_VC_City", "HYDERABAD (A"},
                 {"cbTimeZone", ""},
                 {"txtLatDetails", "9"},
                 {"txtLonDetails", "x"}};
    for (const auto &[field, keys] : steps) {
        QVERIFY2(Focus().startsWith(QLatin1String(field)), field);
        if (Focus() == QStringLiteral("Opt_AM")) {
            Key(Qt::Key_Right);
        }
        Enter(QString::fromLatin1(keys));
    }
    QCOMPARE(Text("txtLatDetails") + Text("txtLonDetails"), QStringLiteral("17 N 2078 E 30"));
    QCOMPARE(Text("cbTimeZone"), QStringLiteral("Indian Standard Time  (5.5 hrs E)"));
    QCOMPARE(Focus(), QStringLiteral("cmdSave"));
    Key(Qt::Key_Return);
    QVERIFY(!form_->isVisible());
    QCOMPARE(program_->display.failure, std::string());
    QCOMPARE(State().birth.ChartName + " " + State().birth.BirthGender, std::string("Uma Female"));
    QCOMPARE(QString::fromStdString(MomentText(State().birth.BirthMoment)),
             QStringLiteral("14/07/1965 02:15 PM"));
    const auto &signs = program_->horoscope.forms.frm_rasi.South;
    QVERIFY2(signs.at(6).starts_with("Asc"), signs.at(6).c_str());
    QVERIFY2(signs.at(2).starts_with("Sun"), signs.at(2).c_str());
    form_->show();
    QCOMPARE(Text("Txt_VC_ChartName") + Text("cbHour") + Text("txt_VC_City"),
             QStringLiteral("Uma02Hyderabad (A.P)"));
}

void BirthDialogTest::FaultyFieldsAreTold_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("focus"); ///< cbMins where it stays
    const char *const rows[][4] = {
        {"Txt_VC_ChartName", "", "Enter Name", "Txt_VC_ChartName"},
        {"txt_Date", "", "Enter Date of Birth", "txt_Date"},
        {"txt_Month", "", "Enter Month", "txt_Month"},
        {"txt_Year", "", "Enter Year", "txt_Year"},
        {"txt_Year", "1799", "Enter Year Between 1800 and 3000", "txt_Year"},
        {"txt_Year", "3001", "Enter Year Between 1800 and 3000", "txt_Year"},
        {"txt_Date", "32", "Enter Correct Date", "cbMins"},
        {"cbHour", "", "Enter Correct Time", "cbHour"},
        {"cbMins", "", "Enter Correct Time", "cbMins"},
        {"cbHour", "25", "Enter Correct Time", "cbHour"},
        {"cbMins", "60", "Enter Correct Time", "cbMins"},
        {"txt_VC_Country", "", "Select Country", "txt_VC_Country"},
        {"txt_VC_City", "", "Select City", "txt_VC_City"},
        {"cbTimeZone", "", "Select Timezone", "cbTimeZone"},
        {"txt_VC_Country", "Indi", "Select Country", "txt_VC_Country"},
        {"txt_VC_City", "Nowhere", "Select City", "txt_VC_City"},
        {"cbTimeZone", "IST", "Select Timezone", "cbTimeZone"},
        {"txt_VC_Country", "brazil", "Select City", "txt_VC_City"},
    };
    for (const auto &row : rows) {
        QTest::addRow("%s %s", row[0], row[1]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1])
                                               << QString::fromLatin1(row[2]) << QString::fromLatin1(row[3]);
    }
}

void BirthDialogTest::FaultyFieldsAreTold() {
    QFETCH(const QString, field);
    QFETCH(const QString, text);
    QFETCH(const QString, message);
    QFETCH(const QString, focus);
    MessageBoxAnswer answer;
    EnterBirth();
    Put(field, text);
    for (const char *command : {"cmdSave", "mnuSave"}) {
        Combo("cbMins")->setFocus();
        if (auto *button = Find<QPushButton>(command)) {
            button->click();
        } else {
            Run(command);
        }
        QCOMPARE(answer.Text(), message);
        QCOMPARE(answer.Title(), QStringLiteral("Enter Birth Details"));
        QCOMPARE(answer.Icon(), QMessageBox::Information);
        QCOMPARE(Focus(), focus);
        QVERIFY(form_->isVisible());
    }
    QCOMPARE(answer.Count(), 2);
    QCOMPARE(State().birth.BirthYear + First("select count(*) from ChartSave").toStdString(),
             std::string("19650"));
}

void BirthDialogTest::PlacesAreTakenWhenTheFieldIsLeft() {
    QComboBox *cities = Combo("txt_VC_City");
    Combo("txt_VC_Country")->setFocus();
    QTest::keyClicks(form_->focusWidget(), QStringLiteral("BRAZ"));
    QCOMPARE(Text("txt_VC_Country"), QStringLiteral("Brazil"));
    QCOMPARE(cities->count(), 0);
    Key(Qt::Key_Return);
    QVERIFY(cities->count() > 1000);
    QCOMPARE(Combo("cbTimeZone")->count(), 8);
    QCOMPARE(Text("cbTimeZone"), QString());
    QTest::keyClicks(form_->focusWidget(), QStringLiteral("sao paulo"));
    QCOMPARE(Text("txt_VC_City"), QStringLiteral("Sao Paulo"));
    QCOMPARE(Text("txtLatDetails"), QString());
    Key(Qt::Key_Tab);
    QCOMPARE(Focus(), QStringLiteral("cmdadd"));
    QCOMPARE(Text("txtLatDetails") + Text("txtLonDetails"), QStringLiteral("23 S 3346 W 38"));
    Combo("cbTimeZone")->setFocus();
    Key(Qt::Key_Down);
    QCOMPARE(Text("cbTimeZone"), Combo("cbTimeZone")->itemText(0));

    // Going through the country changes nothing, another country does.
    Combo("txt_VC_Country")->setFocus();
    Enter({});
    QCOMPARE(Text("txt_VC_City"), QStringLiteral("Sao Paulo"));
    Combo("txt_VC_Country")->setFocus(Qt::TabFocusReason);
    Enter(QStringLiteral("india"));
    QCOMPARE(Text("txt_VC_City") + Text("cbTimeZone"), QStringLiteral("Indian Standard Time  (5.5 hrs E)"));
    QCOMPARE(cities->count(), 7248);
    Run("mnu_New");
    QCOMPARE(cities->count() + Combo("cbTimeZone")->count(), 0);
}

void BirthDialogTest::SavedChartIsFoundChangedAndDeleted() {
    MessageBoxAnswer answer;
    EnterBirth();
    Run("mnuOpen");
    QCOMPARE(ChartsListed(), QStringList());
    QTest::keyClick(Charts(), Qt::Key_Return);
    QCOMPARE(answer.Text(), QStringLiteral("Select Chart Name "));
    QCOMPARE(answer.Title(), QStringLiteral("Available Users"));
    List()->reject();
    Run("mnuSave");
    QCOMPARE(answer.Text(), QStringLiteral("Chart Successfully Saved"));

    // The same person is saved once more by a form of its own.
    OpenForm();
    EnterBirth("Uma");
    Run("save");
    const QStringList both{QStringLiteral("Uma~14-Jul-1965"), QStringLiteral("Velnesh~14-Jul-1965")};
    Run("mnuOpen");
    QCOMPARE(List()->findChild<QLabel *>(QStringLiteral("Lab_Details"))->text(),
             QStringLiteral("Select User Details"));
    QCOMPARE(ChartsListed(), both);
    QTest::keyClicks(Charts(), QStringLiteral("vel"));
    QTest::keyClick(Charts(), Qt::Key_Return);
    QVERIFY2(!List()->isVisible(), qPrintable(answer.Text()));
    QCOMPARE(Text("Txt_VC_ChartName") + Text("txt_Date") + Text("txt_Month") + Text("cbHour"),
             QStringLiteral("Velnesh14Jul2"));
    QVERIFY(Find<QRadioButton>("Opt_PM")->isChecked());
    QCOMPARE(Text("txt_VC_City") + Text("txtLonDetails"), QStringLiteral("Hyderabad (A.P)78 E 30"));

    Find<QLineEdit>("Txt_VC_ChartName")->setText(QStringLiteral("Zoya"));
    Run("mnuSave");
    QCOMPARE(answer.Text(), QStringLiteral("Details are Sucessfully Updated"));
    QCOMPARE(answer.Icon(), QMessageBox::NoIcon);
    for (const char *open : {"mnuOpen", "open"}) {
        Run(open);
        QCOMPARE(ChartsListed().last(), QStringLiteral("Zoya~14-Jul-1965"));
        QTest::keyClick(Charts(), Qt::Key_Down);
        QCOMPARE(Charts()->currentRow(), 0);
        QTest::mouseClick(Charts()->viewport(), Qt::LeftButton, {},
                          Charts()->visualItemRect(Charts()->item(1)).center());
        QVERIFY(!List()->isVisible());
        QCOMPARE(Text("Txt_VC_ChartName"), QStringLiteral("Zoya"));
    }

    const int told = answer.Count();
    const auto deleteAnswering = [&](QMessageBox::StandardButton button, const char *action) {
        QTimer::singleShot(0, this, [button] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            QCOMPARE(box->text(), QStringLiteral("Are You Sure You want to delete ?"));
            box->button(button)->click();
        });
        Run(action);
    };
    deleteAnswering(QMessageBox::No, "mnuDelete");
    QCOMPARE(First("select count(*) from ChartSave"), QStringLiteral("2"));
    deleteAnswering(QMessageBox::Yes, "delete");
    QCOMPARE(answer.Text(), QStringLiteral("Successfully Deleted"));
    QCOMPARE(answer.Count(), told + 1);
    QCOMPARE(First("select group_concat(ChartName) from ChartSave"), both.first());
    QCOMPARE(Focus() + Text("Txt_VC_ChartName"), QStringLiteral("Txt_VC_ChartName"));
    Run("delete"); // no name, no question
    OpenForm();
    Run("mnuDelete"); // no saved chart, no question
    QCOMPARE(answer.Count(), told + 1);
}

void BirthDialogTest::LastChartComesBack() {
    MessageBoxAnswer answer;
    const QString name = QStringLiteral("Ravi, \"the\" younger = 2; \u00fc");
    EnterBirth();
    Put(QStringLiteral("Txt_VC_ChartName"), name);
    Put(QStringLiteral("cbMins"), QStringLiteral("16"));
    Run("save");
    QCOMPARE(answer.Text(), QStringLiteral("Chart Successfully Saved"));
    Start();
    QCOMPARE(RestoreLastChart(program_->settings, program_->horoscope.state), std::string());
    QCOMPARE(QString::fromStdString(State().birth.ChartName), name);
    QCOMPARE(MomentText(State().birth.BirthMoment), std::string("14/07/1965 02:16 PM"));
    QCOMPARE(State().birth.BirthCity, std::string("Hyderabad (A.P)"));
    const QSettings stored(folder_->filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    QCOMPARE(stored.childGroups(), QStringList{QStringLiteral("Horo")});
}

void BirthDialogTest::RefusedSaveLeavesTheFormAsTyped() {
    MessageBoxAnswer answer;
    EnterBirth("O'Brien");
    Run("mnuSave");
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QCOMPARE(answer.Title(), QString());
    QCOMPARE(Text("Txt_VC_ChartName") + Text("txt_VC_City"), QStringLiteral("O'BrienHyderabad (A.P)"));
    QCOMPARE(First("select count(*) from ChartSave"), QStringLiteral("0"));
    QVERIFY(!program_->settings.Read("Name"));

    Put(QStringLiteral("Txt_VC_ChartName"), QStringLiteral("Brien"));
    Put(QStringLiteral("cbHour"), QStringLiteral("two"));
    Find<QPushButton>("cmdSave")->click();
    QCOMPARE(answer.Count(), 2);
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY(form_->isVisible());
}

void BirthDialogTest::NoonIsRemarkedUpon() {
    MessageBoxAnswer answer;
    EnterBirth();
    Put(QStringLiteral("cbHour"), QStringLiteral("12"));
    Run("mnuSave");
    const auto *remark = Find<QLabel>("label_remark");
    QCOMPARE(remark->text(), QString());
    Run("open");
    QTest::keyClick(Charts(), Qt::Key_Down);
    List()->findChild<QPushButton *>(QStringLiteral("Cmd_Submit"))->click();
    QCOMPARE(Text("cbHour"), QStringLiteral("12"));
    QVERIFY(Find<QRadioButton>("Opt_AM")->isChecked());
    QVERIFY(!remark->text().isEmpty());
    Find<QRadioButton>("Opt_PM")->setChecked(true);
    QCOMPARE(remark->text(), QString());
    QCOMPARE(answer.Count(), 1);
}

void BirthDialogTest::MasterComesAndGoes() {
    const QSignalSpy wanted(form_.get(), &BirthDialog::CityMasterWanted);
    EnterBirth();
    Find<QPushButton>("cmdadd")->setFocus();
    Key(Qt::Key_Return);
    QCOMPARE(wanted.count(), 1);
    QVERIFY(!form_->isVisible());
    program_->connection.Execute("insert into City_Master (CityName,CountryID,LatitudeDegree,Latitude_NS,"
                                 "LatitudeMinute,LongitudeDegree,Longitude_EW,LongitudeMinute) values "
                                 "('Aaa Village',101,1,'N',2,3,'E',4)");
    form_->ReturnFromMaster();
    QVERIFY(form_->isVisible());
    QCOMPARE(Focus(), QStringLiteral("txt_VC_City"));
    QCOMPARE(Text("Txt_VC_ChartName") + Text("txt_VC_City") + Text("cbMins"),
             QStringLiteral("VelneshHyderabad (A.P)15"));
    Enter(QStringLiteral("aaa"));
    QCOMPARE(Text("txtLatDetails") + Text("txtLonDetails"), QStringLiteral("1 N 23 E 4"));
}

void BirthDialogTest::NothingStartsDuringARun() {
    const QSignalSpy closed(form_.get(), &BirthDialog::Closed);
    MessageBoxAnswer answer;
    EnterBirth();
    int runs = 0;
    program_->display.atEachAdvance = [this, &runs] {
        ++runs;
        for (const QAction *action : form_->findChildren<QAction *>()) {
            if (!action->objectName().isEmpty()) {
                Run(action->objectName().toLatin1());
            }
        }
        for (QPushButton *button : form_->findChildren<QPushButton *>()) {
            button->click();
        }
        form_->close();
    };
    Find<QPushButton>("cmdSave")->click();
    QCOMPARE(runs, 15);
    QVERIFY(!form_->isVisible());
    QCOMPARE(closed.count() + answer.Count(), 0);
    QVERIFY(List() == nullptr);
    QCOMPARE(Text("Txt_VC_ChartName"), QStringLiteral("Velnesh"));
    form_->show();
    Key(Qt::Key_Escape);
    QCOMPARE(closed.count(), 1);
    form_->show();
    form_->close();
    QCOMPARE(closed.count(), 2);
}

void BirthDialogTest::SettingsAreWrittenTogetherOrNotAtAll() {
    const QString file = folder_->filePath(QStringLiteral("kept.ini"));
    UserSettings settings(file);
    settings.Write("City", "Pune");
    QVERIFY(!settings.Read("City"));
    settings.Flush();
    QCOMPARE(UserSettings(file).Read("City"), std::optional<std::string>("Pune"));

    // No folder can be made below a file.
    UserSettings refused(file + QStringLiteral("/settings.ini"));
    refused.Write("City", "Delhi");
    QVERIFY_EXCEPTION_THROWN(refused.Flush(), RuntimeError);
    QVERIFY(!refused.Read("City"));
}

QTEST_MAIN(BirthDialogTest)
#include "BirthDialogTest.moc"
