#include "shell/dialogs/ChartListDialog.h"
#include "shell/window/HoroscopeViews.h"
#include "tests/shell/MainWindowCase.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QTableView>
#include <QTimer>

using namespace kelvaro;

/// What the readers of screens are told of the windows.
class ReadAloudTest : public MainWindowCase {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window_.reset(); }

    void EveryValueOfTheBirthDetails();
    void EveryGridAndChartOfTheViews();
    void EveryFieldOfTheDialogs();

private:
    static QString Spoken(QObject *part, QAccessible::Text what) {
        return QAccessible::queryAccessibleInterface(part)->text(what);
    }

    static void ExpectNamedFields(const QWidget &window);
};

void ReadAloudTest::init() {
    MakeFolder();
    Open();
    Start();
}

void ReadAloudTest::EveryValueOfTheBirthDetails() {
    QCOMPARE(Spoken(Find("txtGName"), QAccessible::Name), QStringLiteral("Name: Velnesh"));
    QCOMPARE(Spoken(Find("txtgmt"), QAccessible::Name),
             QStringLiteral("Greenwich Mean Time: 14/Jul/1965 08:45 AM"));
    int values = 0;
    for (QLabel *label : Find("frm_UserDetails")->findChildren<QLabel *>()) {
        if (label->objectName().startsWith(QStringLiteral("txt"), Qt::CaseInsensitive)) {
            QVERIFY(Spoken(label, QAccessible::Name).endsWith(QStringLiteral(": ") + label->text()));
            ++values;
        }
    }
    QCOMPARE(values, 30);
}

void ReadAloudTest::EveryGridAndChartOfTheViews() {
    for (std::size_t view = 0; view < horoscopeViews.size(); ++view) {
        window_->ChooseView(view);
        QWidget *form = Find(horoscopeViews.at(view).form);
        QVERIFY(!Spoken(form, QAccessible::Name).isEmpty());
        for (QTableView *grid : form->findChildren<QTableView *>()) {
            QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(grid)->tableInterface();
            const QModelIndex cell = grid->model()->index(2, 1);
            const QString title = grid->model()->headerData(1, Qt::Horizontal).toString().trimmed();
            QCOMPARE(table->cellAt(2, 1)->text(QAccessible::Name),
                     QStringLiteral("%1, %2: %3")
                         .arg(cell.siblingAtColumn(0).data().toString(), title, cell.data().toString()));
        }
        ExpectNamedFields(*form);
    }
    QVERIFY(Spoken(Find("frm_rasi")->findChild<QWidget *>("Frame_SouthBride"), QAccessible::Name)
                .startsWith(QStringLiteral("Rasi, Velnesh, 14/Jul/1965")));
}

/// A box says in its description what its text is; its line, a field and a button have a name of their own.
void ReadAloudTest::ExpectNamedFields(const QWidget &window) {
    for (QComboBox *box : window.findChildren<QComboBox *>()) {
        QVERIFY2(!Spoken(box, QAccessible::Description).isEmpty(), qPrintable(box->objectName()));
    }
    for (QLineEdit *line : window.findChildren<QLineEdit *>()) {
        QVERIFY2(!Spoken(line, QAccessible::Name).isEmpty(),
                 qPrintable(line->objectName() + line->parentWidget()->objectName()));
    }
    for (QTableView *table : window.findChildren<QTableView *>()) {
        QVERIFY2(!Spoken(table, QAccessible::Name).isEmpty(), qPrintable(table->objectName()));
    }
    for (QListWidget *list : window.findChildren<QListWidget *>()) {
        QVERIFY2(!Spoken(list, QAccessible::Name).isEmpty(), qPrintable(list->objectName()));
    }
}

void ReadAloudTest::EveryFieldOfTheDialogs() {
    int dialogs = 0;
    for (const char *action : {"mnuBirthDetails", "mDI_Country", "MDI_LAt_Lon", "MDI_ADD_TimeZone",
                               "mnudetails", "mnuPreferences", "Mnu_IshtaGhatika", "mnu_BirthTime"}) {
        QTimer::singleShot(0, this, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            QVERIFY(dialog != nullptr);
            ExpectNamedFields(*dialog);
            ++dialogs;
            dialog->close();
        });
        Find<QAction>(action)->trigger();
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    }
    QCOMPARE(dialogs, 8);
    const ChartListDialog charts(window_->HoroscopeInForce().connection);
    ExpectNamedFields(charts);
}

QTEST_MAIN(ReadAloudTest)
#include "ReadAloudTest.moc"
