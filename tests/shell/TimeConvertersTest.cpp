#include "horoscope/Horoscope.h"
#include "horoscope/NoDisplay.h"
#include "shell/dialogs/TimeConverterDialog.h"
#include "tests/shell/DialogFixture.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QRadioButton>

using namespace kelvaro;
using namespace Qt::StringLiterals;

class TimeConvertersTest : public QObject {
    Q_OBJECT

private slots:
    void init() { connection_.OpenCopyInMemory(KELVARO_SEED_DATABASE); }
    void cleanup() { connection_.Close(); }

    void BirthTimeBecomesIshtaGhatiAndComesBack();
    void FaultsAreToldAndTheFieldWaits();

private:
    NoDisplay display_;
    store::Connection connection_;
    Horoscope horoscope_{connection_, display_};
};

void TimeConvertersTest::BirthTimeBecomesIshtaGhatiAndComesBack() {
    const MessageBoxAnswer answer;
    IshtaGhatiDialog there(horoscope_);
    QCOMPARE(there.objectName(), u"frm_BirthTimetoIshtaGhatika"_s);
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

    BirthTimeDialog back(horoscope_);
    back.show();
    QVERIFY(QTest::qWaitForWindowExposed(&back));
    for (const char *text : {"14", "jul", "1965", "21", "2.5", "india", "hyderabad (a", "", ""}) {
        Enter(back, text);
    }
    QCOMPARE(TextIn(back, "txtBirthTime"), u"Birth Time : 02:15 PM"_s);
}

void TimeConvertersTest::FaultsAreToldAndTheFieldWaits() {
    BirthTimeDialog dialog(horoscope_);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const MessageBoxAnswer answer;
    Press(dialog, "cmdSubmit");
    QCOMPARE(answer.Text(), u"Select Country"_s);
    QCOMPARE(FocusIn(dialog), u"Cmb_VP_Country"_s);
    Enter(dialog, "india");
    QTest::keyClicks(dialog.focusWidget(), u"no such town"_s);
    Press(dialog, "cmdSubmit");
    QCOMPARE(answer.Text(), u"Select City"_s);
    QCOMPARE(TextIn(dialog, "Cmb_VP_City").toLower(), u"no such town"_s);
    Type(dialog, "Cmb_VP_City", "delhi");
    Type(dialog, "txt_Date", "31");
    Type(dialog, "txt_Month", "feb");
    Press(dialog, "cmdSubmit");
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY2(answer.Text().contains(u"31/2/"_s), qPrintable(answer.Text()));
}

QTEST_MAIN(TimeConvertersTest)
#include "TimeConvertersTest.moc"
