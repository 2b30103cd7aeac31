#include "horoscope/Horoscope.h"
#include "horoscope/NoDisplay.h"
#include "shell/dialogs/TimeConverterDialog.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <memory>

using namespace kelvaro;

namespace {

/// Types a text into the control with the focus and goes on with Enter.
void Enter(QWidget *dialog, const char *text) {
    QWidget *field = dialog->focusWidget();
    QTest::keyClicks(field, QString::fromLatin1(text));
    QTest::keyClick(field, Qt::Key_Return);
}

} // namespace

class TimeConvertersTest : public QObject {
    Q_OBJECT

private slots:
    void init() { connection_.OpenCopyInMemory(KELVARO_SEED_DATABASE); }
    void cleanup() { connection_.Close(); }

    void BirthTimeBecomesIshtaGhatiAndComesBack();
    void FaultsAreToldAndTheFieldWaits();

private:
    static QString ResultIn(QDialog &dialog, const char *name) {
        return dialog.findChild<QLineEdit *>(QString::fromLatin1(name))->text();
    }

    NoDisplay display_;
    store::Connection connection_;
    Horoscope horoscope_{connection_, display_};
};

void TimeConvertersTest::BirthTimeBecomesIshtaGhatiAndComesBack() {
    const MessageBoxAnswer answer;
    IshtaGhatiDialog there(horoscope_);
    QCOMPARE(there.objectName(), QStringLiteral("frm_BirthTimetoIshtaGhatika"));
    there.show();
    QVERIFY(QTest::qWaitForWindowExposed(&there));
    for (const char *text : {"14", "jul", "1965", "02", "15"}) {
        Enter(&there, text);
    }
    there.findChild<QRadioButton *>(QStringLiteral("Opt_PM"))->setFocus();
    QTest::keyClick(there.focusWidget(), Qt::Key_Space);
    QTest::keyClick(there.focusWidget(), Qt::Key_Return);
    Enter(&there, "india");
    Enter(&there, "hyderabad (a");
    QTest::keyClick(there.focusWidget(), Qt::Key_Return); // the one zone of the country stands there
    QTest::keyClick(there.focusWidget(), Qt::Key_Return); // the button
    QCOMPARE(answer.Text(), QString());
    // The sun rose at 05:50, 505 minutes before.
    QCOMPARE(ResultIn(there, "txtIshtaGhati"), QStringLiteral("Ishta Ghati : 21:2:30"));

    BirthTimeDialog back(horoscope_);
    back.show();
    QVERIFY(QTest::qWaitForWindowExposed(&back));
    for (const char *text : {"14", "jul", "1965", "21", "2.5", "india", "hyderabad (a", "", ""}) {
        Enter(&back, text);
    }
    QCOMPARE(ResultIn(back, "txtBirthTime"), QStringLiteral("Birth Time : 02:15 PM"));
}

void TimeConvertersTest::FaultsAreToldAndTheFieldWaits() {
    BirthTimeDialog dialog(horoscope_);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const MessageBoxAnswer answer;
    auto *submit = dialog.findChild<QPushButton *>(QStringLiteral("cmdSubmit"));
    QTest::mouseClick(submit, Qt::LeftButton);
    QCOMPARE(answer.Text(), QStringLiteral("Select Country"));
    QCOMPARE(dialog.focusWidget()->objectName(), QStringLiteral("Cmb_VP_Country"));
    Enter(&dialog, "india");
    QTest::keyClicks(dialog.focusWidget(), QStringLiteral("no such town"));
    QTest::mouseClick(submit, Qt::LeftButton);
    QCOMPARE(answer.Text(), QStringLiteral("Select City"));
    QCOMPARE(dialog.findChild<QComboBox *>(QStringLiteral("Cmb_VP_City"))->currentText().toLower(),
             QStringLiteral("no such town"));
    for (const char *name : {"Cmb_VP_City", "txt_Date", "txt_Month"}) {
        auto *box = dialog.findChild<QComboBox *>(QString::fromLatin1(name));
        box->setFocus();
        box->lineEdit()->selectAll();
        Enter(&dialog, name == std::string("txt_Date")    ? "31"
                       : name == std::string("txt_Month") ? "feb"
                                                          : "delhi");
    }
    QTest::mouseClick(submit, Qt::LeftButton);
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY2(answer.Text().contains(QStringLiteral("31/2/")), qPrintable(answer.Text()));
}

QTEST_MAIN(TimeConvertersTest)
#include "TimeConvertersTest.moc"
