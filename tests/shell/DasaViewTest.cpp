#include "shell/views/DasaView.h"

#include "analysis/DasaForms.h"
#include "horoscope/Horoscope.h"
#include "horoscope/NamesForLanguage.h"
#include "horoscope/NoDisplay.h"
#include "panchanga/clsStar.h"
#include "runtime/MomentText.h"
#include "runtime/Now.h"
#include "store/database/Connection.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTest>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace kelvaro;

namespace {

constexpr double shortYear = 360;

DasaForm FormOf(double moonLongitude, Moment birth, double daysInYear) {
    clsStar stars;
    const NamedScheme scheme =
        FindNamedScheme(moonLongitude, birth, daysInYear, *NamesIn(Language::English), stars);
    return {scheme.dasas,
            scheme.bhuktis,
            scheme.antras,
            DasaGrid(scheme),
            BhuktiGrid(scheme),
            AntraGrid(scheme),
            BalanceTextsOf(scheme).window};
}

/// The sample chart.
DasaForm SampleForm() {
    return FormOf(275.456, MomentOf({1965, 7, 14}, {14, 15, 0}), shortYear);
}

const DasaPeriod *TodayIn(const std::vector<DasaPeriod> &periods) {
    const Moment today = DateOf(Now());
    const auto found = std::ranges::find_if(periods, [&](const DasaPeriod &period) {
        return DateOf(period.start) <= today && today < DateOf(period.end);
    });
    return found == periods.end() ? nullptr : &*found;
}

QString ShownDate(Moment moment) {
    return QString::fromStdString(MonthNameDateText(moment));
}

} // namespace

class DasaViewTest : public QObject {
    Q_OBJECT

private slots:
    void TodayIsShownInItsOwnSectionsForManyBirths();
    void EachOfTodaysPeriodsIsNamedWithItsDates();
    void AClickBringsBackWhatBelongsToADasa();
    void ABirthLongAgoStartsAtItsFirstDasa();
    void NothingIsCutAndTheThirdListGoesBelow();

private:
    void Show(const DasaForm &form) {
        horoscope_.forms.Frm_Dasa = form;
        view_.Refresh(horoscope_);
    }

    template <class Part = TextGridView> Part *Find(const char *name) {
        return view_.findChild<Part *>(QString::fromLatin1(name));
    }

    /// Whether the row that is selected in a list is that of a period, and marked; none for null.
    bool IsChosen(const char *list, const DasaPeriod *period) {
        TextGridView *grid = Find(list);
        const QModelIndexList rows = grid->selectionModel()->selectedRows();
        if (period == nullptr) {
            return rows.isEmpty() && grid->Rows().MarkedRow() < 0;
        }
        return rows.size() == 1 && rows.front().row() == grid->Rows().MarkedRow() &&
               rows.front().siblingAtColumn(1).data() == ShownDate(period->start) &&
               rows.front().siblingAtColumn(2).data() == ShownDate(period->end);
    }

    void ExpectNothingCut();

    store::Connection connection_;
    NoDisplay display_;
    Horoscope horoscope_{connection_, display_};
    DasaView view_;
};

void DasaViewTest::TodayIsShownInItsOwnSectionsForManyBirths() {
    int drifted = 0;
    for (int i = 0; i < 300; ++i) {
        const Moment birth = DateAdd(Interval::Day, -(i * 7919 % 42000), Now());
        const DasaForm form = FormOf(std::fmod(i * 83.77, 360), birth, shortYear);
        Show(form);
        const DasaPeriod *dasa = TodayIn(form.dasas);
        const DasaPeriod *bhukti = TodayIn(form.bhuktis);
        QVERIFY(IsChosen("mshDasa", dasa));
        QVERIFY(IsChosen("mshBukti", bhukti));
        QVERIFY(IsChosen("mshAntra", TodayIn(form.antras)));
        if (dasa != nullptr && bhukti != nullptr && dasa->dasa != bhukti->dasa) {
            ++drifted;
            QCOMPARE(Find<QComboBox>("bhuktiSections")->currentText(),
                     QString::fromStdString(form.dasas.at(bhukti->dasa).lordName + " Dasa"));
        }
    }
    QVERIFY2(drifted > 5, "births whose bhukti lies in another dasa than today's");
}

void DasaViewTest::EachOfTodaysPeriodsIsNamedWithItsDates() {
    const DasaForm form = SampleForm();
    Show(form);
    const QString line = Find<QLabel>("todaysPeriods")->text();
    for (const DasaPeriod *period : {TodayIn(form.dasas), TodayIn(form.bhuktis), TodayIn(form.antras)}) {
        QVERIFY(period != nullptr);
        QVERIFY2(
            line.contains(ShownDate(period->start) + QStringLiteral(" \u2013 ") + ShownDate(period->end)),
            qPrintable(line));
    }
    QVERIFY(line.contains(QStringLiteral(" in ") + Find<QComboBox>("antraSections")->currentText()));
    QVERIFY(Find<QLabel>("reckonings")->text().contains(QStringLiteral("drift")));
}

void DasaViewTest::AClickBringsBackWhatBelongsToADasa() {
    Show(SampleForm());
    const int dasa = Find("mshDasa")->currentIndex().row();
    Find<QComboBox>("bhuktiSections")->setCurrentIndex(dasa == 0 ? 1 : 0);
    QTest::mouseClick(Find("mshDasa")->viewport(), Qt::LeftButton, {},
                      Find("mshDasa")->visualRect(Find("mshDasa")->currentIndex()).center());
    QCOMPARE(Find<QComboBox>("bhuktiSections")->currentIndex(), dasa);
}

void DasaViewTest::ABirthLongAgoStartsAtItsFirstDasa() {
    Show(FormOf(10, MomentOf({1800, 1, 1}, {}), shortYear));
    QCOMPARE(Find("mshDasa")->currentIndex().row(), 0);
    QCOMPARE(Find<QComboBox>("bhuktiSections")->currentIndex(), 0);
    QVERIFY(Find<QComboBox>("antraSections")->currentText().startsWith(QStringLiteral("Ketu Dasa, ")));
    // A list that is copied says which section it is of.
    Find("mshAntra")->findChild<QAction *>(QStringLiteral("copyTable"))->trigger();
    QCOMPARE(QApplication::clipboard()->text().section(u'\n', 0, 1),
             Find<QComboBox>("antraSections")->currentText() + QStringLiteral("\nAntra\tFrom\tTo\tAge"));
    QVERIFY(Find<QLabel>("todaysPeriods")->text().contains(QStringLiteral("outside")));
}

/// Texts are elided where a layout of theirs is wider than what the style leaves free in a cell.
void DasaViewTest::ExpectNothingCut() {
    for (const char *name : {"mshDasa", "mshBukti", "mshAntra"}) {
        const TextGridView *grid = Find(name);
        const int padding = 2 * (grid->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 1;
        for (int cell = 0; cell < grid->model()->rowCount() * 4; ++cell) {
            const QModelIndex index = grid->model()->index(cell / 4, cell % 4);
            QFont font = grid->font();
            font.setBold(index.data(Qt::FontRole).value<QFont>().bold());
            QTextLayout text(u'\u2004' + index.data().toString() + u'\u2004', font);
            text.beginLayout();
            const QTextLine line = text.createLine();
            text.endLayout();
            QVERIFY2(line.naturalTextWidth() <= grid->columnWidth(cell % 4) - padding, name);
        }
        for (int column = 0; column < 4; ++column) {
            QVERIFY2(grid->horizontalHeader()->sectionSizeHint(column) <= grid->columnWidth(column), name);
        }
    }
}

void DasaViewTest::NothingIsCutAndTheThirdListGoesBelow() {
    const struct {
        QSize size;
        double points;
        int beside; ///< lists that stand beside one another
        bool fits;  ///< no need to scroll
    } cases[] = {{{834, 660}, 9, 2, true},   {{1090, 760}, 9, 3, true},  {{1730, 1040}, 9, 3, true},
                 {{834, 660}, 14, 1, false}, {{1400, 900}, 14, 2, true}, {{431, 350}, 9, 1, false}};
    view_.show();
    for (const auto &each : cases) {
        QFont font = view_.font();
        font.setPointSizeF(each.points);
        view_.setFont(font);
        view_.resize(each.size);
        Show(SampleForm());
        QTest::qWait(1);
        ExpectNothingCut();
        const QRect antras(Find("mshAntra")->mapTo(&view_, QPoint()), Find("mshAntra")->size());
        const QRect dasas(Find("mshDasa")->mapTo(&view_, QPoint()), Find("mshDasa")->size());
        const QRect bhuktis(Find("mshBukti")->mapTo(&view_, QPoint()), Find("mshBukti")->size());
        const int beside =
            1 + (bhuktis.top() < dasas.bottom() ? 1 : 0) + (antras.top() < dasas.bottom() ? 1 : 0);
        QVERIFY2(beside == each.beside, qPrintable(QString::number(each.size.width())));
        QVERIFY(antras.right() <= view_.width() && bhuktis.right() <= view_.width());
        QVERIFY(!each.fits || view_.rect().contains(antras));
    }
}

QTEST_MAIN(DasaViewTest)
#include "DasaViewTest.moc"
