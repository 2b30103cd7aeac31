#include "shell/dialogs/BirthDialog.h"

#include "horoscope/Horoscope.h"
#include "horoscope/NoDisplay.h"
#include "runtime/MomentText.h"
#include "runtime/RuntimeError.h"
#include "shell/dialogs/ChartListDialog.h"
#include "shell/window/UserSettings.h"
#include "store/database/Recordset.h"
#include "tests/shell/DialogFixture.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QSignalSpy>
#include <QToolBar>

#include <functional>
#include <memory>

using namespace kelvaro;
using namespace Qt::StringLiterals;

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
    void FaultyFieldsAreTold();
    void PlacesAreTakenWhenTheFieldIsLeft();
    void EscapeClosesOnlyTheOpenList();
    void CandidatesShowWhileACityIsTyped();
    void FormSaysWhatItUnderstandsAndStandsFor();
    void DiscardedTypingComesBack();
    void SavedChartIsFoundChangedAndDeleted();
    void ChartListIsNarrowedDown();
    void RefusedSaveLeavesTheFormAsTyped();
    void MasterComesAndGoes();
    void ClockOfTheBirthplaceIsTold();
    void NothingStartsDuringARun();
    void SettingsAreKeptTogetherOrNotAtAll();

private:
    template <typename Control> Control *Find(const char *name) const {
        return form_->findChild<Control *>(QString::fromLatin1(name));
    }
    QComboBox *Combo(const char *name) const { return Find<QComboBox>(name); }
    void Run(const char *action) const { Find<QAction>(action)->trigger(); }

    QString Text(const char *name) const { return TextIn(*form_, name); }
    QString Focus() const { return FocusIn(*form_); }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(form_->focusWidget(), key, modifiers);
    }

    /// States the birth of 14 July 1965, 2:15 PM at Hyderabad on the emptied form, up to the button OK.
    void EnterBirth(const char *name = "Velnesh") const {
        Run("mnu_New");
        for (const char *text : {name, "m", "14", "jul", "1965", "02", "15"}) {
            Enter(*form_, text);
        }
        Find<QRadioButton>("Opt_PM")->setChecked(true);
        for (const char *text : {"", "india", "hyderabad (a", "", "", ""}) {
            Enter(*form_, text);
        }
    }

    /// Puts a text into a field without going through its keys, as the clipboard does.
    void Put(const char *field, const char *text) const {
        if (QComboBox *box = Combo(field)) {
            box->setEditText(QString::fromUtf8(text));
        } else {
            Find<QLineEdit>(field)->setText(QString::fromUtf8(text));
        }
    }

    QString Label(const char *name) const { return Find<QLabel>(name)->text(); }

    ChartListDialog *List() const { return form_->findChild<ChartListDialog *>(); }
    QListWidget *Charts() const { return List()->findChild<QListWidget *>(); }

    QString ChartsListed() const {
        QStringList texts;
        for (const QListWidgetItem *row : Charts()->findItems({}, Qt::MatchContains)) {
            texts << row->text();
        }
        return texts.join(u", "_s);
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
        DiscardedBirths discarded;
    };

    void Start() {
        form_.reset();
        program_ = std::make_unique<Program>(folder_->file, folder_->settings);
        OpenForm();
    }

    void OpenForm() {
        form_ = std::make_unique<BirthDialog>(program_->horoscope, program_->settings, program_->discarded);
        program_->display.form = form_.get();
        form_->setModal(true);
        form_->show();
        // Fields of a window that is not active are not left.
        QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    }

    const HoroscopeState &State() const { return program_->horoscope.state; }

    std::unique_ptr<SeedFolder> folder_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<BirthDialog> form_;
};

void BirthDialogTest::init() {
    folder_ = std::make_unique<SeedFolder>();
    Start();
}

void BirthDialogTest::cleanup() {
    form_.reset();
    program_.reset();
}

void BirthDialogTest::KeysAloneStateABirth() {
    QString toolTips;
    for (const QAction *action : Find<QToolBar>("tbrMirvane")->actions()) {
        toolTips += action->toolTip() + u'/';
    }
    QCOMPARE(toolTips, u"New BrithDetails/Open Birthdetails/Save Details/Delete Details/Close/"_s);
    QCOMPARE(Focus(), u"Txt_VC_ChartName"_s);
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
        if (Focus() == u"Opt_AM"_s) {
            Key(Qt::Key_Right);
        }
        Enter(*form_, keys);
    }
    QCOMPARE(Text("txtLatDetails") + Text("txtLonDetails"), u"17 N 2078 E 30"_s);
    QCOMPARE(Text("cbTimeZone"), u"Indian Standard Time  (5.5 hrs E)"_s);
    QCOMPARE(Focus(), u"cmdSave"_s);
    Key(Qt::Key_Return);
    QVERIFY(!form_->isVisible());
    QCOMPARE(program_->display.failure, std::string());
    QCOMPARE(State().birth.ChartName + " " + State().birth.BirthGender, std::string("Uma Female"));
    QCOMPARE(QString::fromStdString(MomentText(State().birth.BirthMoment)), u"14/07/1965 02:15 PM"_s);
    QVERIFY(program_->horoscope.forms.frm_rasi.South.at(6).starts_with("Asc"));
}

void BirthDialogTest::FaultyFieldsAreTold() {
    MessageBoxAnswer answer;
    EnterBirth();
    Put("txt_Date", "32");
    Combo("cbMins")->setFocus();
    Find<QPushButton>("cmdSave")->click();
    QCOMPARE(answer.Text(), u"Enter Correct Date"_s);
    QCOMPARE(answer.Title(), u"Enter Birth Details"_s);
    QCOMPARE(answer.Icon(), QMessageBox::Information);
    QCOMPARE(Focus(), u"cbMins"_s); // where it was
    QVERIFY(form_->isVisible());
    Put("txt_Date", "14");
    Put("txt_VC_Country", "Indi");
    Run("mnuSave");
    QCOMPARE(answer.Text() + Focus(), u"Select Countrytxt_VC_Country"_s);
    Put("txt_VC_Country", "brazil");
    Find<QPushButton>("cmdSave")->click();
    QCOMPARE(answer.Text() + Focus(), u"Select Citytxt_VC_City"_s);
    QCOMPARE(answer.Count(), 3);
    QCOMPARE(First("select count(*) from ChartSave"), u"0"_s);
}

void BirthDialogTest::PlacesAreTakenWhenTheFieldIsLeft() {
    QComboBox *cities = Combo("txt_VC_City");
    Combo("txt_VC_Country")->setFocus();
    QTest::keyClicks(form_->focusWidget(), u"BRAZ"_s);
    QCOMPARE(Text("txt_VC_Country"), u"Brazil"_s);
    QCOMPARE(cities->count(), 0);
    Key(Qt::Key_Return);
    QVERIFY(cities->count() > 1000);
    QCOMPARE(Combo("cbTimeZone")->count(), 8);
    QCOMPARE(Text("cbTimeZone"), QString());
    QTest::keyClicks(form_->focusWidget(), u"sao paulo"_s);
    QCOMPARE(Text("txt_VC_City"), u"Sao Paulo"_s);
    QCOMPARE(Text("txtLatDetails"), QString());
    Key(Qt::Key_Tab);
    QCOMPARE(Focus(), u"cmdadd"_s);
    QCOMPARE(Text("txtLatDetails") + Text("txtLonDetails"), u"23 S 3346 W 38"_s);

    // Going through the country changes nothing, another country does.
    Combo("txt_VC_Country")->setFocus();
    Enter(*form_, "");
    QCOMPARE(Text("txt_VC_City"), u"Sao Paulo"_s);
    Combo("txt_VC_Country")->setFocus(Qt::TabFocusReason);
    Enter(*form_, "india");
    QCOMPARE(Text("txt_VC_City") + Text("cbTimeZone"), u"Indian Standard Time  (5.5 hrs E)"_s);
    QCOMPARE(cities->count(), 7248);
    Run("mnu_New");
    QCOMPARE(cities->count() + Combo("cbTimeZone")->count(), 0);
}

void BirthDialogTest::EscapeClosesOnlyTheOpenList() {
    EnterBirth();
    for (QComboBox *box : form_->findChildren<QComboBox *>()) {
        for (const auto &[key, modifier] :
             {std::pair(Qt::Key_Escape, Qt::NoModifier), std::pair(Qt::Key_Up, Qt::AltModifier)}) {
            box->setFocus();
            QTest::keyClick(box, Qt::Key_Down, Qt::AltModifier);
            QVERIFY2(box->view()->isVisible(), qPrintable(box->objectName()));
            // Through the window, where a shortcut would take the key from the list.
            QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), key, modifier);
            QTRY_VERIFY2(!box->view()->isVisible(), qPrintable(box->objectName()));
            QVERIFY2(form_->isVisible(), qPrintable(box->objectName()));
        }
    }
    QTest::keyClick(form_->windowHandle(), Qt::Key_Escape);
    QVERIFY(!form_->isVisible());
}

void BirthDialogTest::CandidatesShowWhileACityIsTyped() {
    const auto *candidates = form_->findChild<QListWidget *>(u"txt_VC_City_candidates"_s);
    Combo("txt_VC_Country")->setFocus();
    Enter(*form_, "india");
    // Letter by letter, also where so few rows are left that the scroll bar goes.
    for (const char letter : {'c', 'h', 'e', 'n', 'n', 'a', 'g'}) {
        QTest::keyClick(form_->focusWidget(), letter);
        QVERIFY2(candidates->isVisible(), std::string(1, letter).c_str());
    }
    QCOMPARE(candidates->item(0)->text() + u'/' + candidates->currentItem()->text(),
             u"Chennagiri/Chennagiri"_s);
    QTest::keyClick(form_->windowHandle(), Qt::Key_Escape);
    QVERIFY(!candidates->isVisible() && form_->isVisible());
    Key(Qt::Key_Home);
    QTest::keyClicks(form_->focusWidget(), u"Hyderabad"_s);
    QVERIFY(candidates->count() > 1);
    const QListWidgetItem *second = candidates->item(1);
    const QString picked = second->text();
    QTest::mouseClick(candidates->viewport(), Qt::LeftButton, {},
                      candidates->visualItemRect(second).center());
    QCOMPARE(Text("txt_VC_City"), picked);
    QVERIFY(!candidates->isVisible() && !Text("txtLatDetails").isEmpty());
    // A mistyped text stays, without candidates and without the place of another city.
    Type(*form_, "txt_VC_City", "Hyderqbad");
    QVERIFY(!candidates->isVisible());
    QCOMPARE(Text("txt_VC_City") + Text("txtLatDetails"), u"Hyderqbad"_s);
    QVERIFY(Label("label_understood").contains(u"no such city in the list"_s));
    Type(*form_, "txt_VC_City", "chennag");
    QVERIFY(candidates->isVisible());
    Key(Qt::Key_Return);
    QVERIFY(!candidates->isVisible());
    QCOMPARE(Text("txtLatDetails"), u"11 N 32"_s);
}

void BirthDialogTest::FormSaysWhatItUnderstandsAndStandsFor() {
    MessageBoxAnswer answer;
    EnterBirth();
    const auto *chart = Find<QLabel>("label_chart");
    QCOMPARE(Label("label_understood"),
             u"Wednesday 14 July 1965, 14:15, Hyderabad (A.P) 17 N 20 78 E 30, 5.5 hrs E"_s);
    QCOMPARE(Find<QPushButton>("cmdSave")->accessibleDescription(), Label("label_understood"));
    QCOMPARE(chart->text(), u"Not saved yet"_s);
    Run("mnuSave");
    QVERIFY(chart->text().startsWith(u"Saved as Velnesh, 14-Jul-1965."_s) && !chart->autoFillBackground());
    // One digit is completed to a number; it is seen before the field is left.
    Combo("cbMins")->setFocus();
    Combo("cbMins")->lineEdit()->selectAll();
    QTest::keyClicks(form_->focusWidget(), u"4"_s);
    QVERIFY(Label("label_understood").contains(u" 14:40, "_s));
    Run("mnu_New");
    QVERIFY(chart->text().startsWith(u"Save replaces the chart of Velnesh, 14-Jul-1965."_s));
    QVERIFY(chart->autoFillBackground());
    QVERIFY(Label("label_understood").contains(u"gender not chosen"_s));
    Find<QLineEdit>("Txt_VC_ChartName")->setText(u"velnesh "_s);
    QVERIFY(!chart->autoFillBackground());
    Find<QLineEdit>("Txt_VC_ChartName")->setText(QString(300, u'a'));
    QCOMPARE(Text("Txt_VC_ChartName").size(), 255);
}

void BirthDialogTest::DiscardedTypingComesBack() {
    const auto *offer = Find<QPushButton>("cmdBringBack");
    const auto nextForm = [this, &offer](const char *closing) {
        Find<QPushButton>(closing)->click();
        OpenForm();
        offer = Find<QPushButton>("cmdBringBack");
    };
    nextForm("CMDCANCEl");
    Run("mnu_New");
    nextForm("CMDCANCEl");
    QVERIFY2(!offer->isVisible(), "nothing was typed");

    EnterBirth("Uma");
    Run("mnu_New");
    QVERIFY(offer->isVisible());
    QCOMPARE(Label("label_discarded"), u"Not saved: Uma, 14 Jul 1965"_s);
    QTest::keyClicks(form_->focusWidget(), u"Ravi"_s);
    Key(Qt::Key_B, Qt::AltModifier);
    QTRY_COMPARE(Text("Txt_VC_ChartName") + Text("txt_VC_City"), u"UmaHyderabad (A.P)"_s);
    QCOMPARE(Label("label_discarded"), u"Not saved: Ravi"_s);
    nextForm("CMDCANCEl");
    QCOMPARE(Text("Txt_VC_ChartName"), QString());
    Key(Qt::Key_B, Qt::AltModifier);
    QTRY_COMPARE(Text("Txt_VC_ChartName") + Text("txtLatDetails"), u"Uma17 N 20"_s);
    QVERIFY(Combo("txt_VC_City")->count() > 1000);
    // What has been saved is not offered.
    MessageBoxAnswer answer;
    Run("mnuSave");
    QCOMPARE(answer.Text(), u"Chart Successfully Saved"_s);
    nextForm("CMDCANCEl");
    QCOMPARE(Label("label_discarded"), u"Not saved: Ravi"_s);
}

void BirthDialogTest::ChartListIsNarrowedDown() {
    MessageBoxAnswer answer;
    for (const char *name : {"Uma Devi", "Jörg", "Velnesh"}) {
        form_->close();
        OpenForm();
        EnterBirth();
        Put("Txt_VC_ChartName", name);
        Run("save");
    }
    Run("open");
    QTRY_COMPARE(Charts()->currentItem()->text(), u"Velnesh~14-Jul-1965"_s);
    auto *filter = List()->findChild<QLineEdit *>(u"filter"_s);
    QTRY_VERIFY(filter->hasFocus());
    const auto *details = List()->findChild<QLabel *>(u"chartDetails"_s);
    filter->setText(u"JÖR"_s);
    QCOMPARE(Charts()->currentItem()->text(), u"Jörg~14-Jul-1965"_s);
    QVERIFY(Charts()->item(1)->isHidden() && Charts()->item(2)->isHidden());
    QCOMPARE(details->text(), u"Wednesday 14 July 1965, 14:15, Hyderabad (A.P) 17 N 20 78 E 30"_s);
    filter->selectAll();
    QTest::keyClicks(filter, u"jul"_s); // of the dates, not of a name
    QCOMPARE(details->text(), u"No saved chart has this in its name."_s);
    QTest::keyClick(filter, Qt::Key_Return);
    QCOMPARE(answer.Text(), u"Select Chart Name "_s);
    filter->clear();
    QCOMPARE(details->text(), QString());
    QTest::keyClick(filter, Qt::Key_Down);
    QTest::keyClick(filter, Qt::Key_Down);
    QTest::keyClick(filter, Qt::Key_Return);
    QCOMPARE(Text("Txt_VC_ChartName"), u"Uma Devi"_s);

    // Charts that cannot be read are told in the list, which can stand before the bar that tells it too.
    std::string told;
    program_->connection.OnRowsLeftOut([&told](const std::string &remark) { told = remark; });
    program_->connection.Execute("update ChartSave set Sno = Sno + 4611686018427387904");
    Run("open");
    QCOMPARE(ChartsListed(), QString());
    QVERIFY(told.starts_with("Left out: 3"));
    QCOMPARE(List()->findChild<QLabel *>(u"chartDetails"_s)->text(), QString::fromStdString(told));
    told.clear();
    program_->connection.TellRowsLeftOut("of another list");
    QCOMPARE(told, std::string("of another list"));
}

void BirthDialogTest::SavedChartIsFoundChangedAndDeleted() {
    MessageBoxAnswer answer;
    EnterBirth();
    Run("mnuOpen");
    QCOMPARE(ChartsListed(), QString());
    QCOMPARE(List()->findChild<QLabel *>(u"chartDetails"_s)->text(), u"There are no saved charts."_s);
    QTest::keyClick(Charts(), Qt::Key_Return);
    QCOMPARE(answer.Title() + answer.Text(), u"Available UsersSelect Chart Name "_s);
    List()->reject();
    Run("mnuSave");

    // A birth at noon is saved by a form of its own. It comes back as one at midnight, and the form says so.
    OpenForm();
    EnterBirth("Uma");
    Put("cbHour", "12");
    Run("save");
    const auto *remark = Find<QLabel>("label_remark");
    QCOMPARE(remark->text(), QString());
    Run("open"); // at the chart in force
    List()->findChild<QPushButton *>(u"Cmd_Submit"_s)->click();
    QVERIFY(Find<QRadioButton>("Opt_AM")->isChecked());
    QVERIFY(!remark->text().isEmpty());
    Find<QRadioButton>("Opt_PM")->setChecked(true);
    QCOMPARE(remark->text(), QString());

    Run("mnuOpen");
    QCOMPARE(List()->findChild<QLabel *>(u"Lab_Details"_s)->text(), u"Select User Details"_s);
    QCOMPARE(ChartsListed(), u"Uma~14-Jul-1965, Velnesh~14-Jul-1965"_s);
    QTest::keyClicks(Charts(), u"vel"_s);
    QTest::keyClick(Charts(), Qt::Key_Return);
    QVERIFY2(!List()->isVisible(), qPrintable(answer.Text()));
    QCOMPARE(Text("Txt_VC_ChartName") + Text("txt_Date") + Text("txt_Month") + Text("cbHour"),
             u"Velnesh14Jul2"_s);
    QVERIFY(Find<QRadioButton>("Opt_PM")->isChecked());
    QCOMPARE(Text("txt_VC_City") + Text("txtLonDetails"), u"Hyderabad (A.P)78 E 30"_s);

    Find<QLineEdit>("Txt_VC_ChartName")->setText(u"Zoya"_s);
    Run("mnuSave");
    QCOMPARE(answer.Text(), u"Details are Sucessfully Updated"_s);
    QCOMPARE(answer.Icon(), QMessageBox::NoIcon);
    Run("mnuOpen");
    QVERIFY(ChartsListed().endsWith(u"Zoya~14-Jul-1965"_s));
    QTest::mouseClick(Charts()->viewport(), Qt::LeftButton, {},
                      Charts()->visualItemRect(Charts()->item(1)).center());
    QVERIFY(!List()->isVisible());
    QCOMPARE(Text("Txt_VC_ChartName"), u"Zoya"_s);

    const int told = answer.Count();
    const auto deleteAnswering = [&](QMessageBox::StandardButton button, const char *action) {
        QTimer::singleShot(0, this, [button] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            QCOMPARE(box->text(), u"Are You Sure You want to delete ?"_s);
            box->button(button)->click();
        });
        Run(action);
    };
    deleteAnswering(QMessageBox::No, "mnuDelete");
    QCOMPARE(First("select count(*) from ChartSave"), u"2"_s);
    deleteAnswering(QMessageBox::Yes, "delete");
    QVERIFY(Label("label_chart").startsWith(u"The saved chart has gone"_s));
    QCOMPARE(answer.Text(), u"Successfully Deleted"_s);
    QCOMPARE(answer.Count(), told + 1);
    QCOMPARE(First("select group_concat(ChartName) from ChartSave"), u"Uma~14-Jul-1965"_s);
    QCOMPARE(Focus() + Text("Txt_VC_ChartName"), u"Txt_VC_ChartName"_s);
    Run("delete"); // no name, no question
    OpenForm();
    Run("mnuDelete"); // no saved chart, no question
    QCOMPARE(answer.Count(), told + 1);
}

void BirthDialogTest::RefusedSaveLeavesTheFormAsTyped() {
    MessageBoxAnswer answer;
    EnterBirth("O'Brien");
    Run("mnuSave");
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QCOMPARE(Text("Txt_VC_ChartName") + Text("txt_VC_City"), u"O'BrienHyderabad (A.P)"_s);
    Put("cbHour", "two");
    Find<QPushButton>("cmdSave")->click();
    QCOMPARE(answer.Count(), 2);
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY(form_->isVisible());
}

void BirthDialogTest::MasterComesAndGoes() {
    const QSignalSpy wanted(form_.get(), &BirthDialog::CityMasterWanted);
    EnterBirth();
    Find<QPushButton>("cmdadd")->setFocus();
    Key(Qt::Key_Return);
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(wanted.front().front().toInt(), 101); // the country of the form
    QVERIFY(!form_->isVisible());
    form_->ReturnFromMaster();
    QVERIFY(form_->isVisible());
    QCOMPARE(Focus(), u"txt_VC_City"_s);
    QCOMPARE(Text("Txt_VC_ChartName") + Text("txt_VC_City") + Text("cbMins"), u"VelneshHyderabad (A.P)15"_s);
}

void BirthDialogTest::ClockOfTheBirthplaceIsTold() {
    EnterBirth();
    const auto state = [this](const char *field, const char *keys) {
        Type(*form_, field, keys);
        Key(Qt::Key_Return);
    };
    QCOMPARE(Label("label_clock"),
             u"Clocks in Hyderabad (A.P) stood at 5.5 hrs E on 14 Jul 1965. Records from before "
             "1970 are less certain."_s);
    const auto *button = Find<QPushButton>("cmdTakeZone");
    QVERIFY(!button->isVisible());

    // The records know the zone, and still none is chosen unasked.
    state("txt_VC_Country", "united states");
    state("txt_VC_City", "chicago");
    state("txt_Year", "1990");
    QCOMPARE(Label("label_clock"), u"Clocks in Chicago stood at 5 hrs W on 14 Jul 1990, summer time."_s);
    QCOMPARE(Text("cbTimeZone"), QString());
    QVERIFY(button->isVisible());
    {
        MessageBoxAnswer answer;
        Press(*form_, "cmdSave");
        QCOMPARE(answer.Text(), u"Select Timezone"_s);
    }
    form_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    state("cbTimeZone", "central s");
    QVERIFY(Label("label_clock")
                .contains(u"; the chosen zone says 6 hrs W: an hour changes the Lagna by half a sign."));
    QVERIFY(Find<QLabel>("label_clock")->autoFillBackground());
    Key(Qt::Key_U, Qt::AltModifier);
    QTRY_COMPARE(Text("cbTimeZone"), u"Central Daylight Time (USA)  (5 hrs W)"_s);
    QVERIFY(!button->isVisible() && !Find<QLabel>("label_clock")->autoFillBackground());
    QCOMPARE(Label("label_clock"), u"Clocks in Chicago stood at 5 hrs W on 14 Jul 1990, summer time."_s);

    // An offset that the list lacks goes to the master of time zones.
    QSignalSpy wanted(form_.get(), &BirthDialog::NewZoneWanted);
    state("txt_Year", "1850");
    QVERIFY(
        Label("label_clock").contains(u"5 hours 50 minutes 36 seconds W on 14 Jul 1850, local mean time"));
    Key(Qt::Key_A, Qt::AltModifier);
    QTRY_COMPARE(wanted.count(), 1);
    QVERIFY(!form_->isVisible());
    form_->ReturnFromMaster();
    state("txt_Year", "185");
    QCOMPARE(Label("label_clock"), QString());
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
    QCOMPARE(Text("Txt_VC_ChartName"), u"Velnesh"_s);
    form_->show();
    Key(Qt::Key_Escape);
    QCOMPARE(closed.count(), 1);
    form_->show();
    form_->close();
    QCOMPARE(closed.count(), 2);
}

void BirthDialogTest::SettingsAreKeptTogetherOrNotAtAll() {
    MessageBoxAnswer answer;
    const char *const name = "Ravi, \"the\" younger = 2; \u00fc";
    EnterBirth();
    Put("Txt_VC_ChartName", name);
    Run("save");
    QCOMPARE(answer.Text(), u"Chart Successfully Saved"_s);
    Start();
    QCOMPARE(RestoreLastChart(program_->settings, program_->horoscope.state), std::string());
    QCOMPARE(State().birth.ChartName, std::string(name));
    QCOMPARE(QSettings(folder_->settings, QSettings::IniFormat).childGroups(), QStringList{"Horo"});

    program_->settings.Write("City", "Pune");
    QCOMPARE(UserSettings(folder_->settings).Read("City"), std::optional<std::string>("Hyderabad (A.P)"));
    program_->settings.Flush();
    QCOMPARE(UserSettings(folder_->settings).Read("City"), std::optional<std::string>("Pune"));
    // No folder can be made below a file.
    UserSettings refused(folder_->settings + u"/settings.ini"_s);
    refused.Write("City", "Delhi");
    QVERIFY_EXCEPTION_THROWN(refused.Flush(), RuntimeError);
    QVERIFY(!refused.Read("City"));
}

QTEST_MAIN(BirthDialogTest)
#include "BirthDialogTest.moc"
