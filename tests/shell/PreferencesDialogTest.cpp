#include "shell/dialogs/PreferencesDialog.h"

#include "shell/window/MDILight.h"
#include "store/database/DatabaseFile.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <functional>
#include <memory>

using namespace kelvaro;

class PreferencesDialogTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void TwoChangesInARowRunTheDriverAnew();
    void ApplyLeavesTheDatabaseAsItWas();
    void FaultyCustomAyanamsaIsToldAndKept();
    void AnotherBhavaThanTheChoiceIsKept();

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

    static QComboBox *Combo(PreferencesDialog &dialog, const char *name) {
        return dialog.findChild<QComboBox *>(name);
    }

    static void Type(PreferencesDialog &dialog, const char *combo, const QString &keys) {
        Combo(dialog, combo)->setFocus();
        Combo(dialog, combo)->lineEdit()->selectAll();
        QTest::keyClicks(dialog.focusWidget(), keys);
    }

    static void Press(PreferencesDialog &dialog, const char *button) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton);
    }

    const HoroscopeState &State() const { return window_->HoroscopeInForce().state; }

    store::OnLoadClass Stored() const {
        store::Connection connection;
        connection.Open(file_);
        store::OnLoadClass preferences;
        preferences.FnPreferences(connection);
        return preferences;
    }

    std::unique_ptr<QTemporaryDir> folder_;
    std::filesystem::path file_;
    std::unique_ptr<MDILight> window_;
};

void PreferencesDialogTest::init() {
    window_.reset();
    folder_ = std::make_unique<QTemporaryDir>();
    const std::filesystem::path folder = folder_->path().toStdString();
    file_ = folder / store::databaseFileName;
    std::filesystem::copy_file(KELVARO_SEED_DATABASE, file_);
    std::filesystem::permissions(file_, std::filesystem::perms(0644));
    window_ = std::make_unique<MDILight>();
    window_->show();
    window_->Start(folder, folder / "user");
}

void PreferencesDialogTest::TwoChangesInARowRunTheDriverAnew() {
    QLabel *ayanamsa = window_->findChild<QLabel *>("txtAyanamsa");
    QCOMPARE(ayanamsa->text(), QStringLiteral("-23.22.20  (Lahiri)"));
    InDialog([](PreferencesDialog &dialog) {
        Type(dialog, "cbAyanamsa", QStringLiteral("kr"));
        QCOMPARE(Combo(dialog, "cbAyanamsa")->currentText(), QStringLiteral("Krishnamoorthy Ayanamsa"));
        QCOMPARE(Combo(dialog, "cbAyanamsa")->lineEdit()->selectedText(),
                 QStringLiteral("ishnamoorthy Ayanamsa"));
        Press(dialog, "cmdSave");
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY2(ayanamsa->text().endsWith(QStringLiteral("(KP)")), qPrintable(ayanamsa->text()));
    InDialog([](PreferencesDialog &dialog) {
        QCOMPARE(Combo(dialog, "cbAyanamsa")->currentText(), QStringLiteral("Krishnamoorthy Ayanamsa"));
        Type(dialog, "cbLanguage", QStringLiteral("S"));
        Type(dialog, "cbChart", QStringLiteral("no"));
        Press(dialog, "cmdSave");
    });
    QCOMPARE(window_->findChild<QLabel *>("txtLagna")->text(), QStringLiteral("Tula"));
    QCOMPARE(window_->HoroscopeInForce().forms.frm_rasi.VisibleFrame, ChartStyle::North);
    QCOMPARE(Stored().clsLanguage, std::string("Sanskrit"));
    QCOMPARE(Stored().clsAyanamsa, std::string("KP"));
}

void PreferencesDialogTest::ApplyLeavesTheDatabaseAsItWas() {
    InDialog([](PreferencesDialog &dialog) {
        Type(dialog, "cbAyanamsa", QStringLiteral("T"));
        Type(dialog, "Cbdays", QStringLiteral("360"));
        Press(dialog, "Command1");
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(State().positions.Ayanamsa, 0.0);
    QCOMPARE(State().preferences.DaysInYear, 360.0);
    QCOMPARE(Stored().clsAyanamsa, std::string("Lahiri"));
    QCOMPARE(Stored().clsDays_in_a_Year, 365.25);
    InDialog([](PreferencesDialog &dialog) {
        Type(dialog, "cbAyanamsa", QStringLiteral("R"));
        Press(dialog, "CMDCANCEl");
    });
    QCOMPARE(State().preferences.AyanamsaName, std::string("Sayana"));
}

void PreferencesDialogTest::FaultyCustomAyanamsaIsToldAndKept() {
    MessageBoxAnswer answer;
    InDialog([&](PreferencesDialog &dialog) {
        QVERIFY(!dialog.findChild<QWidget *>("FRAMECUSTOM")->isVisible());
        Type(dialog, "cbAyanamsa", QStringLiteral("Cu"));
        QVERIFY(dialog.findChild<QWidget *>("FRAMECUSTOM")->isVisible());
        auto *zero = dialog.findChild<QLineEdit *>("txtZero");
        auto *progression = dialog.findChild<QLineEdit *>("txtPogression");
        zero->setFocus();
        zero->selectAll();
        QTest::keyClicks(zero, QStringLiteral("2004"));
        QTest::keyClick(zero, Qt::Key_Return);
        QCOMPARE(dialog.focusWidget(), static_cast<QWidget *>(progression));
        progression->selectAll();
        QTest::keyClicks(progression, QStringLiteral("50"));
        Press(dialog, "cmdSave");
        QCOMPARE(answer.Text(), QStringLiteral("Enter Zero Year Less than current Year "));
        QCOMPARE(answer.Title(), QStringLiteral("Preferences"));
        QVERIFY(dialog.isVisible());
        QCOMPARE(zero->text(), QStringLiteral("2004"));
        QCOMPARE(dialog.focusWidget(), static_cast<QWidget *>(zero));
        zero->setText(QStringLiteral("397"));
        Press(dialog, "cmdSave");
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(answer.Count(), 1);
    QCOMPARE(State().preferences.YearInForce, 397.0);
    QCOMPARE(Stored().clsProgress, 50.0);
}

void PreferencesDialogTest::AnotherBhavaThanTheChoiceIsKept() {
    window_->HoroscopeInForce().connection.Execute("update Preference set Bhava = 'Not Equal'");
    InDialog([](PreferencesDialog &dialog) {
        const QComboBox *bhava = Combo(dialog, "cbBhava");
        QCOMPARE(bhava->count(), 1);
        QCOMPARE(bhava->itemText(0), QStringLiteral("Equal House"));
        QCOMPARE(bhava->currentText(), QStringLiteral("Placidius"));
        Press(dialog, "cmdSave");
    });
    QCOMPARE(State().preferences.BhavaSystem, std::string("Not Equal"));
    QCOMPARE(Stored().clsBhava, std::string("Not Equal"));
}

QTEST_MAIN(PreferencesDialogTest)
#include "PreferencesDialogTest.moc"
