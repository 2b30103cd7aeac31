#include "shell/dialogs/PreferencesDialog.h"

#include "shell/window/MDILight.h"
#include "tests/shell/DialogFixture.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QLabel>
#include <QMenu>

#include <functional>
#include <memory>

using namespace kelvaro;
using namespace Qt::StringLiterals;

class PreferencesDialogTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void TwoChangesInARowRunTheDriverAnew();
    void ApplyAndCloseStoreNothing();
    void FaultyCustomAyanamsaIsToldAndKept();
    void AnUnlistedBhavaIsShown();

private:
    /// Opens the dialog from the real menu and works in it.
    void InDialog(const std::function<void(PreferencesDialog &)> &work) const {
        bool isDone = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto *dialog = qobject_cast<PreferencesDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            work(*dialog);
            isDone = true;
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
        window_->findChild<QAction *>("mnuPreferences")->trigger();
        QVERIFY(isDone);
    }

    const HoroscopeState &State() const { return window_->HoroscopeInForce().state; }

    store::OnLoadClass Stored() const {
        store::Connection connection;
        connection.Open(folder_->file);
        store::OnLoadClass preferences;
        preferences.FnPreferences(connection);
        return preferences;
    }

    std::unique_ptr<SeedFolder> folder_;
    std::unique_ptr<MDILight> window_;
};

void PreferencesDialogTest::init() {
    window_.reset();
    folder_ = std::make_unique<SeedFolder>();
    window_ = std::make_unique<MDILight>();
    window_->show();
    window_->Start(folder_->path, folder_->path / "user");
}

void PreferencesDialogTest::TwoChangesInARowRunTheDriverAnew() {
    QLabel *ayanamsa = window_->findChild<QLabel *>("txtAyanamsa");
    QCOMPARE(ayanamsa->text(), u"-23.22.20  (Lahiri)"_s);
    InDialog([](PreferencesDialog &dialog) {
        Type(dialog, "cbAyanamsa", "kr");
        QCOMPARE(TextIn(dialog, "cbAyanamsa"), u"Krishnamoorthy Ayanamsa"_s);
        QCOMPARE(dialog.findChild<QComboBox *>("cbAyanamsa")->lineEdit()->selectedText(),
                 u"ishnamoorthy Ayanamsa"_s);
        Press(dialog, "cmdSave");
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY2(ayanamsa->text().endsWith(u"(KP)"_s), qPrintable(ayanamsa->text()));
    InDialog([](PreferencesDialog &dialog) {
        QCOMPARE(TextIn(dialog, "cbAyanamsa"), u"Krishnamoorthy Ayanamsa"_s);
        Type(dialog, "cbLanguage", "S");
        Type(dialog, "cbChart", "no");
        Press(dialog, "cmdSave");
    });
    QCOMPARE(window_->findChild<QLabel *>("txtLagna")->text(), u"Tula"_s);
    QCOMPARE(window_->HoroscopeInForce().forms.frm_rasi.VisibleFrame, ChartStyle::North);
    QCOMPARE(Stored().clsLanguage, std::string("Sanskrit"));
    QCOMPARE(Stored().clsAyanamsa, std::string("KP"));
}

void PreferencesDialogTest::ApplyAndCloseStoreNothing() {
    InDialog([](PreferencesDialog &dialog) {
        Type(dialog, "cbAyanamsa", "T");
        Type(dialog, "Cbdays", "360");
        Press(dialog, "Command1");
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(State().preferences.DaysInYear, 360.0);
    QCOMPARE(Stored().clsAyanamsa, std::string("Lahiri"));
    InDialog([](PreferencesDialog &dialog) {
        Type(dialog, "cbAyanamsa", "R");
        Press(dialog, "CMDCANCEl");
    });
    QCOMPARE(State().preferences.AyanamsaName, std::string("Sayana"));
}

void PreferencesDialogTest::FaultyCustomAyanamsaIsToldAndKept() {
    MessageBoxAnswer answer;
    InDialog([&](PreferencesDialog &dialog) {
        QVERIFY(!dialog.findChild<QWidget *>("FRAMECUSTOM")->isVisible());
        Type(dialog, "cbAyanamsa", "Cu");
        QVERIFY(dialog.findChild<QWidget *>("FRAMECUSTOM")->isVisible());
        Type(dialog, "txtZero", "2004");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        QCOMPARE(FocusIn(dialog), u"txtPogression"_s);
        Type(dialog, "txtPogression", "50");
        Press(dialog, "cmdSave");
        QCOMPARE(answer.Text(), u"Enter Zero Year Less than current Year "_s);
        QCOMPARE(answer.Title(), u"Preferences"_s);
        QVERIFY(dialog.isVisible());
        QCOMPARE(TextIn(dialog, "txtZero") + FocusIn(dialog), u"2004txtZero"_s);
        Type(dialog, "txtZero", "397");
        Press(dialog, "cmdSave");
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(answer.Count(), 1);
    QCOMPARE(State().preferences.YearInForce + Stored().clsProgress, 447.0);
}

void PreferencesDialogTest::AnUnlistedBhavaIsShown() {
    window_->HoroscopeInForce().connection.Execute("update Preference set Bhava = 'Not Equal'");
    InDialog([](PreferencesDialog &dialog) {
        const auto *bhava = dialog.findChild<QComboBox *>("cbBhava");
        QCOMPARE(bhava->count(), 1);
        QCOMPARE(bhava->itemText(0) + bhava->currentText(), u"Equal HousePlacidius"_s);
        Press(dialog, "cmdSave");
    });
    QCOMPARE(State().preferences.BhavaSystem, std::string("Not Equal"));
}

QTEST_MAIN(PreferencesDialogTest)
#include "PreferencesDialogTest.moc"
