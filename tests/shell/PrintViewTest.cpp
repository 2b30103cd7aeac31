#include "shell/print/PrintView.h"

#include "drawing/FileName.h"
#include "horoscope/CalculateHoroscope.h"
#include "report/ReportFile.h"
#include "shell/print/ReportPrinter.h"
#include "tests/shell/MessageBoxAnswer.h"
#include "tests/shell/PrintViewCase.h"

#include <QFileDialog>
#include <QLabel>
#include <QPaintEngine>
#include <QPrintEngine>
#include <QScrollBar>
#include <QSpinBox>
#include <QTimer>

using namespace kelvaro;

namespace {

/// A printer that notes where texts stand, and that fails at a step.
class NotingPrinter : public QPrinter {
public:
    explicit NotingPrinter(QSize area, const char *failing = "")
        : paper_(area, QLatin1String(failing)), ink_(QLatin1String(failing), paper_.sheets) {
        setEngines(&paper_, &ink_);
    }

    const QList<QStringList> &Sheets() const { return paper_.sheets; }
    QRectF Inked() const { return ink_.inked; }

private:
    class Paper : public QPrintEngine {
    public:
        Paper(QSize size, QLatin1String failingStep) : area(size), failing(failingStep) {}
        void setProperty(PrintEnginePropertyKey /*key*/, const QVariant & /*value*/) override {}
        QVariant property(PrintEnginePropertyKey /*key*/) const override { return {}; }
        bool newPage() override {
            sheets << QStringList();
            return failing != QLatin1String("page");
        }
        bool abort() override { return true; }
        int metric(QPaintDevice::PaintDeviceMetric metric) const override {
            return metric == QPaintDevice::PdmWidth    ? area.width()
                   : metric == QPaintDevice::PdmHeight ? area.height()
                                                       : 600;
        }
        QPrinter::PrinterState printerState() const override { return QPrinter::Active; }

        QSize area;
        QLatin1String failing;
        QList<QStringList> sheets{QStringList()};
    };

    class Ink : public QPaintEngine {
    public:
        Ink(QLatin1String failingStep, QList<QStringList> &noted)
            : QPaintEngine(AllFeatures), failing(failingStep), sheets(noted) {}
        bool begin(QPaintDevice * /*device*/) override { return failing != QLatin1String("start"); }
        bool end() override { return failing != QLatin1String("end"); }
        void updateState(const QPaintEngineState & /*state*/) override {}
        void drawPixmap(const QRectF & /*to*/, const QPixmap & /*map*/, const QRectF & /*from*/) override {}
        Type type() const override { return User; }
        void drawTextItem(const QPointF &at, const QTextItem &item) override {
            sheets.back() << item.text();
            inked |= QRectF(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        }

        QLatin1String failing;
        QList<QStringList> &sheets;
        QRectF inked;
    };

    Paper paper_;
    Ink ink_;
};

} // namespace

class PrintViewTest : public PrintViewCase {
    Q_OBJECT

private slots:
    void init();
    void FirstPressAsksForAShortTextAndShowsIt();
    void FilesHoldTheReport();
    void SuggestedNamesSuitEveryFileSystem();
    void ExistingFileIsReplacedAfterAQuestionOnly();
    void CancelAndFailureLeaveTheReportShown();
    void AnotherHoroscopeTakesTheReportAway();
    void PrintDialogMakesAPdf();
    void PagesToPrintAreCounted();
    void PagesFitThePaperLineByLine();
    void RangesAreKeptAndFailuresTold();

private:
    std::string Composed(AntraSection antra) {
        return ComposeReport(horoscope_->state, horoscope_->forms, *connection_, antra);
    }
};

void PrintViewTest::init() {
    Open();
}

void PrintViewTest::FirstPressAsksForAShortTextAndShowsIt() {
    QVERIFY(Te()->toPlainText().isEmpty());
    Press({[&](QDialog &dialog) {
        QCOMPARE(dynamic_cast<QFileDialog &>(dialog).nameFilters(), QStringList("Text Files (*.Txt)"));
        QCOMPARE(dialog.findChild<QLineEdit *>("fileNameEdit")->text(), QStringLiteral("Velnesh.Txt"));
        Cancel(dialog);
    }});
    QCOMPARE(view_->Report(), Composed(AntraSection::Without));
    QVERIFY(Te()->toPlainText().contains(QStringLiteral("Vimshottari Dasa\n================")));
    QCOMPARE(Te()->horizontalScrollBar()->maximum(), 0);
    // Columns stand in line and ink shows on paper, whatever a theme does to the letters of a box.
    qApp->setStyleSheet(QStringLiteral("* { font-family: 'DejaVu Sans'; color: white; background: black; }"));
    const QTextCharFormat letters = Te()->document()->find(QStringLiteral("Vimshottari Dasa")).charFormat();
    QVERIFY(QFontInfo(letters.font()).fixedPitch());
    QCOMPARE(letters.foreground().color(), QColor(Qt::black));
    qApp->setStyleSheet({});
}

void PrintViewTest::FilesHoldTheReport() {
    const struct {
        const char *antra, *kind, *chart, *typed, *written;
    } rows[] = {
        {"Op2", "Op4", "A & B", "Kumar.M", "Kumar.M.Txt"},
        {"Op1", "Op4", "Zoë Владимир", "Рождение", "Рождение.Txt"},
        {"Op2", "Op3", "A & B <C>", "K. Raman", "K. Raman.HTML"},
        {"Op1", "Op3", "Zoë", "zoë.html", "zoë.html"},
    };
    for (const auto &[antra, kind, chart, typed, written] : rows) {
        horoscope_->state.birth.ChartName = chart;
        CalculateHoroscope(*horoscope_);
        Choose(antra);
        Choose(kind);
        Press({Typing(Path(typed))});
        const std::string report =
            Composed(antra == std::string("Op1") ? AntraSection::With : AntraSection::Without);
        QVERIFY(report.find(std::string(": ") + chart + "\r\n") != std::string::npos);
        QCOMPARE(ContentOfFile(Path(written)).toStdString(),
                 kind == std::string("Op3") ? HtmlFileContent(report) : TextFileContent(report));
        QVERIFY(view_->findChild<QLabel *>("outcome")->text().contains(written));
        QVERIFY(QFile::remove(Path(written)));
        QVERIFY(QDir(folder_->path()).isEmpty());
    }
}

void PrintViewTest::SuggestedNamesSuitEveryFileSystem() {
    const struct {
        QString chart, file;
    } rows[] = {
        {"Zoë Владимир", "Zoë Владимир"},
        {"Kumar.M", "Kumar.M"},
        {"../a\\b:c*d?e\"f<g>h|i", "_a_b_c_d_e_f_g_h_i"},
        {" . A\n\tB ..", "A  B"},
        {"...", "Horoscope"},
        {"", "Horoscope"},
        {QString(1000000, u'x'), QString(60, u'x')},
        {QString(59, u'x') + QStringLiteral("😀"), QString(59, u'x')},
    };
    for (const auto &[chart, file] : rows) {
        QCOMPARE(FileNameOf(chart), file);
    }
}

void PrintViewTest::ExistingFileIsReplacedAfterAQuestionOnly() {
    {
        QFile older(Path("chart.Txt"));
        QVERIFY(older.open(QIODevice::WriteOnly));
        older.write("older");
    }
    QMessageBox::StandardButton answer = QMessageBox::No;
    int questions = 0;
    QTimer timer;
    timer.callOnTimeout([&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            ++questions;
            QVERIFY2(box->text().startsWith(QStringLiteral("chart.Txt already exists.")),
                     qPrintable(box->text()));
            box->button(answer)->click();
        }
    });
    timer.start(10);
    Press({Typing(Path("chart")), Cancel});
    QCOMPARE(questions, 1);
    QCOMPARE(ContentOfFile(Path("chart.Txt")), QByteArray("older"));

    answer = QMessageBox::Yes;
    Press({Typing(Path("chart"))});
    QCOMPARE(questions, 2);
    QCOMPARE(ContentOfFile(Path("chart.Txt")), QByteArray::fromStdString(view_->Report()) + "\r\n");
}

void PrintViewTest::CancelAndFailureLeaveTheReportShown() {
    const MessageBoxAnswer answer;
    for (const char *output : {"Op4", "Op3", "Op5"}) {
        Choose(output);
        Press({Cancel});
    }
    QCOMPARE(answer.Count(), 0);
    QVERIFY(view_->findChild<QLabel *>("outcome")->text().isEmpty());
    const QString shown = Te()->toPlainText();
    QVERIFY(!shown.isEmpty());

    connection_->Execute("drop table PersonalDetails");
    Choose("Op1");
    Press({});
    QCOMPARE(answer.Count(), 1);
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY2(answer.Text().contains(QStringLiteral("PersonalDetails"), Qt::CaseInsensitive),
             qPrintable(answer.Text()));
    QCOMPARE(Te()->toPlainText(), shown);
}

void PrintViewTest::AnotherHoroscopeTakesTheReportAway() {
    Press({Cancel});
    horoscope_->forms = HoroscopeForms(); // as a failed run leaves them
    view_->Refresh(*horoscope_);
    QVERIFY(Te()->toPlainText().isEmpty());
    Press({Typing(Path("empty"))});
    QVERIFY(ContentOfFile(Path("empty.Txt")).contains("JANMA PATRIKA"));
}

void PrintViewTest::PrintDialogMakesAPdf() {
    Choose("Op5");
    const struct {
        const char *antra;
        int from, copies;
        qsizetype sheets;
    } cases[] = {{"Op2", 1, 1, 6}, // nine pages of antras follow on the sample's first six
                 {"Op1", 14, 2, 4}};
    for (const auto &c : cases) {
        Choose(c.antra);
        Press({PrintingTo(Path("chart.pdf"), [&](QDialog &dialog) {
            if (c.from > 1) {
                dialog.findChild<QRadioButton *>("printRange")->click();
                dialog.findChild<QSpinBox *>("from")->setValue(c.from);
            }
            dialog.findChild<QSpinBox *>("copies")->setValue(c.copies);
        })});
        QVERIFY(ContentOfFile(Path("chart.pdf")).startsWith("%PDF"));
        QCOMPARE(SheetsIn(ContentOfFile(Path("chart.pdf"))), c.sheets);
    }
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void PrintViewTest::PagesToPrintAreCounted() {
    const struct {
        const char *report;
        std::size_t without, with;
    } cases[] = {
        {"1\f2\f3\f4\f5\f6", 6, 6},
        {"1\f2\f3\f4\f5\f6\f7\f8\r\n", 6, 8},
        {"1\r\n\f2\r\n\f", 2, 2},
        {"1\f\r\n\f3\f \r\n", 3, 3},
        {"", 0, 0},
    };
    for (const auto &c : cases) {
        QCOMPARE(PagesToPrint(c.report, AntraSection::Without).size(), c.without);
        QCOMPARE(PagesToPrint(c.report, AntraSection::With).size(), c.with);
    }
}

void PrintViewTest::PagesFitThePaperLineByLine() {
    const QSize portrait(4250, 6300);
    const QString full = QString(78, u'W') + QStringLiteral("äb");
    const struct {
        QSize area;
        QString line;
        int lines;
    } cases[] = {{portrait, full, 62},
                 {portrait.transposed(), full, 62},
                 {portrait, full, 200},
                 {portrait, QString(95, u'W'), 10}};
    for (const auto &[area, line, lines] : cases) {
        const std::string page = QStringList(lines, line).join(QStringLiteral("\r\n")).toStdString();
        NotingPrinter printer(area);
        PrintSheets(JobOf({"first\r\n", page, "last"}), printer);
        const QList<QStringList> expected{{"first"}, QStringList(lines, line), {"last"}};
        QCOMPARE(printer.Sheets(), expected);
        const QSizeF inked = printer.Inked().size();
        QVERIFY(QRectF(QPointF(0, 0), area).contains(printer.Inked()));
        // As large as the width or the height lets it be.
        QVERIFY(inked.width() > 0.97 * area.width() || inked.height() > 0.97 * area.height());
    }
}

void PrintViewTest::RangesAreKeptAndFailuresTold() {
    for (const char *failing : {"start", "page", "end"}) {
        NotingPrinter printer(QSize(4250, 6300), failing);
        QVERIFY_EXCEPTION_THROWN(PrintSheets(JobOf({"1", "2"}), printer), ReportPrintError);
    }
    NotingPrinter some(QSize(4250, 6300));
    some.setPageRanges(QPageRanges::fromString(QStringLiteral("1,3-7")));
    PrintSheets(JobOf({"1", "2", "3", "4"}), some);
    QCOMPARE(some.Sheets(), (QList<QStringList>{{"1"}, {"3"}, {"4"}}));
    NotingPrinter beyond(QSize(4250, 6300));
    beyond.setPageRanges(QPageRanges::fromString(QStringLiteral("3-7")));
    QVERIFY_EXCEPTION_THROWN(PrintSheets(JobOf({"1", "2"}), beyond), ReportPrintError);
}

QTEST_MAIN(PrintViewTest)
#include "PrintViewTest.moc"
