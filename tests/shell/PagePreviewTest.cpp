#include "shell/print/PagePreview.h"

#include "pages/PaperOfLocale.h"
#include "shell/print/PagesPrinter.h"
#include "shell/print/PdfExport.h"
#include "tests/shell/MessageBoxAnswer.h"
#include "tests/shell/PrintViewCase.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>
#include <cmath>

using namespace kelvaro;

namespace {

/// The largest difference of two dots at the same place, from 0 to 255.
int MostDifferent(const QImage &a, const QImage &b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            most = std::max(most, std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))));
        }
    }
    return most;
}

} // namespace

class PagePreviewTest : public PrintViewCase {
    Q_OBJECT

private slots:
    void init();
    void TheOptionStandsFourthWithItsOwnChoices();
    void TheKeyboardReachesEverythingInOrder();
    void ThePagesOfThePdfAreShown();
    void PagesFollowTheOptionsAndTheHoroscope();
    void ThePaintedPageIsTheComposedOne();
    void PagesAreTurnedByKeysAndButtons();
    void KeysWorkFromTheOptionsAndWithoutRoomForWords();
    void ZoomKeepsItsPlaceAndItsBounds();
    void ThePdfFileIsWritten();
    void WhatFailsIsToldAndLeavesNothing();
    void CancelLeavesNothing();
    void PrintBringsThesePages();
    void PagesStandWhereThePrinterReaches();
    void PaperIsThatOfTheCountry();

private:
    PagesArea &Area() const { return *Find<PagesArea>("pagesArea"); }
    QString PlaceText() const { return Find<QLabel>("pageLabel")->text(); }

    PageOptions Options(AntraSection antra = AntraSection::Without) const {
        return {antra, Find<QCheckBox>("vargaCharts")->isChecked(),
                static_cast<QPageSize::PageSizeId>(Find<QComboBox>("paper")->currentData().toInt())};
    }

    HoroscopePages Composed(const PageOptions &options) const {
        return ComposePages(horoscope_->state, horoscope_->forms, *connection_, options);
    }

    /// Chooses the option and waits for the pages.
    void ShowPages() const {
        Choose("Op6");
        QTRY_VERIFY(Area().PageCount() > 0);
    }
};

void PagePreviewTest::init() {
    Open();
    view_->activateWindow();
}

void PagePreviewTest::TheOptionStandsFourthWithItsOwnChoices() {
    const auto *frame = Find<QRadioButton>("Op4")->parentWidget();
    QStringList captions;
    for (const QRadioButton *option : frame->findChildren<QRadioButton *>()) {
        captions << option->text();
    }
    QCOMPARE(captions, (QStringList{"Generate Horoscope as a Text file", "Generate Horoscope as a HTML file",
                                    "Print Directly", "Generate Horoscope as a PDF file"}));
    QVERIFY(Find<QRadioButton>("Op4")->isChecked());
    for (const char *option : {"Op6", "Op3", "Op5", "Op4"}) {
        Choose(option);
        const bool isPdf = option == std::string("Op6");
        QCOMPARE(Find("vargaCharts")->isEnabled(), isPdf);
        QCOMPARE(Find("paper")->isEnabled(), isPdf);
        QCOMPARE(Find("preview")->isVisible(), isPdf);
        QCOMPARE(Te()->isVisible(), !isPdf);
    }
    for (const QWidget *part : view_->findChildren<QAbstractButton *>()) {
        QVERIFY(!qobject_cast<const QAbstractButton *>(part)->text().isEmpty() ||
                !part->accessibleName().isEmpty());
    }
}

void PagePreviewTest::TheKeyboardReachesEverythingInOrder() {
    Find("Op4")->setFocus();
    QTRY_VERIFY(Find("Op4")->hasFocus());
    for (int step = 0; step < 3; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    }
    QTRY_VERIFY(Area().PageCount() > 0);
    Find("Op2")->setFocus();
    QStringList order;
    for (int step = 0; step < 13; ++step) {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(order, (QStringList{"Op2", "vargaCharts", "paper", "Op6", "CoPrt", "fitWidth", "wholePage",
                                 "zoomOut", "zoomIn", "pageUp", "pageDown", "printPages", "pagesArea"}));
}

void PagePreviewTest::ThePagesOfThePdfAreShown() {
    QCOMPARE(Area().PageCount(), 0); // nothing is composed for nobody to see
    ShowPages();
    const HoroscopePages pages = Composed(Options());
    QCOMPARE(Area().PageCount(), pages.Count());
    QCOMPARE(PlaceText(), QStringLiteral("Page 1 of %1").arg(pages.Count()));
    QCOMPARE(Area().accessibleDescription(), PlaceText());
}

void PagePreviewTest::PagesFollowTheOptionsAndTheHoroscope() {
    ShowPages();
    auto *paper = Find<QComboBox>("paper");
    for (const QPageSize::PageSizeId size : {QPageSize::Letter, QPageSize::A4}) {
        paper->setCurrentIndex(paper->findData(size));
        QTRY_VERIFY(Area().PageCount() > 0);
        const QSizeF wanted = QPageSize(size).size(QPageSize::Point);
        const QSizeF shown = Area().PlaceOf(0).size();
        QVERIFY(std::abs(shown.height() / shown.width() - wanted.height() / wanted.width()) < 0.01);
    }
    Choose("Op1");
    QTRY_COMPARE(Area().PageCount(), Composed(Options(AntraSection::With)).Count());
    Find<QCheckBox>("vargaCharts")->click();
    QTRY_COMPARE(Area().PageCount(), Composed(Options(AntraSection::With)).Count());
    Choose("Op2");
    QTRY_COMPARE(Area().PageCount(), Composed(Options()).Count());

    const QImage before = Area().viewport()->grab().toImage();
    horoscope_->state.birth.ChartName = "Another Name";
    CalculateHoroscope(*horoscope_);
    view_->Refresh(*horoscope_);
    QTRY_COMPARE(Area().PageCount(), Composed(Options()).Count());
    QVERIFY(Area().viewport()->grab().toImage() != before);
}

void PagePreviewTest::ThePaintedPageIsTheComposedOne() {
    ShowPages();
    const HoroscopePages pages = Composed(Options());
    for (const double zoom : {1.0, 2.0}) {
        Area().SetZoom(zoom);
        Area().GoTo(1);
        const QRect place = Area().PlaceOf(1).toRect();
        const QRect seen = place.intersected(Area().viewport()->rect()).adjusted(1, 1, -1, -1);
        QImage page(place.size(), QImage::Format_RGB32);
        const double dotsPerInch = Area().logicalDpiY();
        page.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
        page.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
        page.fill(Qt::white);
        QPainter painter(&page);
        painter.scale(zoom, zoom);
        pages.Paint(1, painter);
        painter.end();
        const QImage shown = Area().viewport()->grab(seen).toImage().convertToFormat(QImage::Format_RGB32);
        // Rounded a little differently, as the one begins in the middle of the other.
        const QImage own = page.copy(seen.translated(-place.topLeft()));
        QCOMPARE(shown.size(), own.size());
        QVERIFY(MostDifferent(shown, own) <= 3);
        QVERIFY(MostDifferent(shown, QImage(shown.size(), QImage::Format_RGB32)) > 200);
    }
}

void PagePreviewTest::PagesAreTurnedByKeysAndButtons() {
    ShowPages();
    const int last = Area().PageCount() - 1;
    QVERIFY(last >= 2);
    const struct {
        int key;
        Qt::KeyboardModifier modifier;
        int page;
    } keys[] = {{Qt::Key_PageDown, Qt::ControlModifier, 1},    {Qt::Key_PageDown, Qt::ControlModifier, 2},
                {Qt::Key_PageUp, Qt::ControlModifier, 1},      {Qt::Key_End, Qt::NoModifier, last},
                {Qt::Key_PageDown, Qt::ControlModifier, last}, {Qt::Key_Home, Qt::NoModifier, 0},
                {Qt::Key_PageUp, Qt::ControlModifier, 0}};
    for (const auto &[key, modifier, page] : keys) {
        QTest::keyClick(&Area(), static_cast<Qt::Key>(key), modifier);
        QCOMPARE(Area().CurrentPage(), page);
        QCOMPARE(PlaceText(), QStringLiteral("Page %1 of %2").arg(page + 1).arg(last + 1));
        // The page that is named is the one that is seen, from its top where there is room.
        const QRect view = Area().viewport()->rect();
        QVERIFY(Area().PlaceOf(page).intersected(view).height() >= view.height() / 2.0);
    }
    // Each of them pressed by the keyboard.
    for (const auto &[name, page] : {std::pair{"pageDown", 1}, {"pageDown", 2}, {"pageUp", 1}}) {
        Find<QPushButton>(name)->setFocus();
        QTest::keyClick(Find<QPushButton>(name), Qt::Key_Return);
        QTRY_COMPARE(Area().CurrentPage(), page);
    }
    // In a view of whole pages a step is a page.
    Find<QPushButton>("wholePage")->click();
    Area().GoTo(0);
    QVERIFY(QRectF(Area().viewport()->rect()).contains(Area().PlaceOf(0)));
    QTest::keyClick(&Area(), Qt::Key_PageDown);
    QCOMPARE(Area().CurrentPage(), 1);
    QVERIFY(QRectF(Area().viewport()->rect()).contains(Area().PlaceOf(1)));
}

void PagePreviewTest::KeysWorkFromTheOptionsAndWithoutRoomForWords() {
    view_->resize(760, 560);
    ShowPages();
    auto *option = Find<QRadioButton>("Op6");
    option->setFocus();
    QTRY_VERIFY(option->hasFocus());
    QTest::keyClick(option, Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(Area().CurrentPage(), 1);
    QTest::keyClick(option, Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(Area().CurrentPage(), 0);
    const double fitted = Area().Zoom();
    QTest::keyClick(option, Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(Area().Zoom() > fitted);
    // The icons keep the keys of the words that they stand for.
    QVERIFY(Find<QPushButton>("wholePage")->text().isEmpty());
    QTest::keyClick(option, Qt::Key_H, Qt::AltModifier);
    QTRY_VERIFY(Area().Fitting() == PagesArea::Fit::WholePage);
    QTest::keyClick(option, Qt::Key_W, Qt::AltModifier);
    QTRY_VERIFY(Area().Fitting() == PagesArea::Fit::Width);
    QCOMPARE(Find("wholePage")->toolTip(), QStringLiteral("Whole Page (Alt+H)"));
    // Where the pages are not seen their keys do nothing.
    Choose("Op4");
    const double zoom = Area().Zoom();
    QTest::keyClick(option, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(Area().Zoom(), zoom);
}

void PagePreviewTest::ZoomKeepsItsPlaceAndItsBounds() {
    ShowPages();
    const auto isFitted = [this] {
        return std::abs(Area().PlaceOf(0).width() + 24 - Area().viewport()->width()) < 1.5;
    };
    for (const int width : {1000, 1001, 1002, 1003, 1300}) {
        view_->resize(width, 800);
        QTRY_VERIFY(isFitted());
        QCOMPARE(Area().horizontalScrollBar()->maximum(), 0);
    }

    Area().setFocus();
    QTest::keyClick(&Area(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(Area().Zoom(), 1.0);
    QCOMPARE(Find<QLabel>("zoomLabel")->text(), QStringLiteral("100 %"));
    QTest::keyClick(&Area(), Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(Area().Zoom(), 1.25);
    QTest::keyClick(&Area(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(Area().Zoom(), 1.0);

    // The spot below the mouse stays below it.
    Area().SetZoom(2);
    Area().GoTo(1);
    const QPointF mouse(200, 150);
    const auto spot = [&] {
        const QRectF place = Area().PlaceOf(1);
        return QPointF((mouse.x() - place.left()) / place.width(),
                       (mouse.y() - place.top()) / place.height());
    };
    const QPointF before = spot();
    QWheelEvent turn(mouse, Area().viewport()->mapToGlobal(mouse), {}, {0, 120}, Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Area().viewport(), &turn);
    QCOMPARE(Area().Zoom(), 3.0);
    QVERIFY(std::hypot(spot().x() - before.x(), spot().y() - before.y()) < 0.01);

    for (int step = 0; step < 20; ++step) {
        Find<QPushButton>("zoomIn")->click();
    }
    QCOMPARE(Area().Zoom(), PagesArea::mostZoom);
    for (int step = 0; step < 20; ++step) {
        Find<QPushButton>("zoomOut")->click();
    }
    QCOMPARE(Area().Zoom(), PagesArea::leastZoom);
    Find<QPushButton>("fitWidth")->click();
    QVERIFY(isFitted());
}

void PagePreviewTest::ThePdfFileIsWritten() {
    ShowPages();
    const int count = Area().PageCount();
    Press({[&](QDialog &dialog) {
        QCOMPARE(dynamic_cast<QFileDialog &>(dialog).nameFilters(), QStringList("PDF Files (*.pdf)"));
        QCOMPARE(dialog.findChild<QLineEdit *>("fileNameEdit")->text(), QStringLiteral("Velnesh.pdf"));
        Typing(Path("Kumar.M"))(dialog);
    }});
    const QByteArray pdf = ContentOfFile(Path("Kumar.M.pdf"));
    QVERIFY(pdf.startsWith("%PDF") && pdf.trimmed().endsWith("%%EOF"));
    QCOMPARE(SheetsIn(pdf), count);
    QVERIFY(Find<QLabel>("outcome")->text().contains(QStringLiteral("Kumar.M.pdf")));
    QCOMPARE(QDir(folder_->path()).entryList(QDir::Files), QStringList("Kumar.M.pdf"));
    QVERIFY(Te()->toPlainText().isEmpty()); // the text was not asked for
}

void PagePreviewTest::WhatFailsIsToldAndLeavesNothing() {
    const MessageBoxAnswer answer;
    ShowPages();
    Press({Cancel});
    QCOMPARE(answer.Count(), 0);
    Press({Typing(Path(QString(253, u'x')))}); // too long with its ending
    QCOMPARE(answer.Count(), 1);
    QVERIFY(QDir(folder_->path()).isEmpty());
    QVERIFY(Find<QLabel>("outcome")->text().isEmpty());

    connection_->Execute("drop table PersonalDetails");
    Press({});
    QCOMPARE(answer.Count(), 2);
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY2(answer.Text().contains(QStringLiteral("PersonalDetails"), Qt::CaseInsensitive),
             qPrintable(answer.Text()));
    view_->activateWindow();
    Press({}, "printPages");
    QCOMPARE(answer.Count(), 3);
    Choose("Op1");
    QTRY_COMPARE(answer.Count(), 4);
    QCOMPARE(PlaceText(), QStringLiteral("No pages"));
    QVERIFY(!Find("printPages")->isEnabled());
    QTest::qWait(50);
    QCOMPARE(answer.Count(), 4); // it is told once
    QVERIFY(QDir(folder_->path()).isEmpty());
}

void PagePreviewTest::CancelLeavesNothing() {
    const HoroscopePages pages = Composed(Options(AntraSection::With));
    {
        QFile older(Path("a.pdf"));
        QVERIFY(older.open(QIODevice::WriteOnly));
        older.write("older");
    }
    int cancelled = 0;
    QTimer timer;
    timer.callOnTimeout([&] {
        if (auto *progress = view_->findChild<QProgressDialog *>();
            progress != nullptr && progress->isVisible()) {
            ++cancelled;
            progress->cancel();
        }
    });
    timer.start(0);
    QVERIFY(!WritePdfFile(view_.get(), pages, Path("a.pdf"), std::chrono::milliseconds(0)));
    QCOMPARE(cancelled, 1);
    QCOMPARE(ContentOfFile(Path("a.pdf")), QByteArray("older"));
    timer.stop();
    QVERIFY(WritePdfFile(view_.get(), pages, Path("a.pdf"), std::chrono::milliseconds(0)));
    QCOMPARE(SheetsIn(ContentOfFile(Path("a.pdf"))), pages.Count());
    QCOMPARE(QDir(folder_->path()).entryList(QDir::Files), QStringList("a.pdf"));
}

void PagePreviewTest::PrintBringsThesePages() {
    ShowPages();
    const int count = Area().PageCount();
    Press({PrintingTo(Path("all.pdf"), [](QDialog &) {})}, "printPages");
    QCOMPARE(SheetsIn(ContentOfFile(Path("all.pdf"))), count);
    QVERIFY(Find<QLabel>("outcome")->text().contains(QStringLiteral("all.pdf")));
    Press({PrintingTo(Path("some.pdf"),
                      [](QDialog &dialog) {
                          dialog.findChild<QRadioButton *>("printRange")->click();
                          dialog.findChild<QSpinBox *>("from")->setValue(2);
                          dialog.findChild<QSpinBox *>("copies")->setValue(2);
                      })},
          "printPages");
    QCOMPARE(SheetsIn(ContentOfFile(Path("some.pdf"))), 2 * (count - 1));
}

void PagePreviewTest::PagesStandWhereThePrinterReaches() {
    const QSizeF a4 = QPageSize(QPageSize::A4).size(QPageSize::Point);
    const QSizeF letter = QPageSize(QPageSize::Letter).size(QPageSize::Point);
    const auto sheet = [](QPageSize::PageSizeId size, const QMarginsF &reach,
                          QPageLayout::Orientation orientation = QPageLayout::Portrait) {
        return QPageLayout(QPageSize(size), orientation, reach, QPageLayout::Point, reach);
    };
    const QMarginsF usual(12, 12, 12, 36);
    QCOMPARE(PlaceOnSheet(a4, sheet(QPageSize::A4, usual)), QRectF(QPointF(0, 0), a4));
    // Another paper of nearly the same size: the borders are cut, which are blank.
    const QRectF other = PlaceOnSheet(letter, sheet(QPageSize::A4, usual));
    QCOMPARE(other.size(), letter);
    QCOMPARE(other.center().x(), a4.width() / 2);
    // What is on the page, less than 36 points from its edges, is always reached.
    for (const QMarginsF &reach : {usual, QMarginsF(60, 40, 20, 80), QMarginsF(0, 0, 0, 90)}) {
        for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            for (const QPageSize::PageSizeId size : {QPageSize::A4, QPageSize::Letter, QPageSize::A5}) {
                const QPageLayout layout = sheet(size, reach, orientation);
                const QRectF place = PlaceOnSheet(a4, layout);
                const double scale = place.width() / a4.width();
                QVERIFY(scale <= 1 && std::abs(place.height() / a4.height() - scale) < 1e-9);
                const double border = 36 * scale;
                const QRectF shown = place.adjusted(border, border, -border, -border);
                QVERIFY(layout.paintRect(QPageLayout::Point).adjusted(-.01, -.01, .01, .01).contains(shown));
            }
        }
    }
}

void PagePreviewTest::PaperIsThatOfTheCountry() {
    QCOMPARE(PaperOf(QLocale(QStringLiteral("en_IN")).territory()), QPageSize::A4);
    QCOMPARE(PaperOf(QLocale(QStringLiteral("en_US")).territory()), QPageSize::Letter);
    QCOMPARE(PaperOf(QLocale::c().territory()), QPageSize::A4);
    const auto kept = [](const char *name) { return qgetenv(name); };
    const QByteArray all = kept("LC_ALL");
    const QByteArray paper = kept("LC_PAPER");
    qunsetenv("LC_ALL");
    qputenv("LC_PAPER", "fr_CA.UTF-8");
    QCOMPARE(UsualPaper(), QPageSize::Letter);
    qputenv("LC_ALL", "de_DE.UTF-8");
    QCOMPARE(UsualPaper(), QPageSize::A4);
    const auto restore = [](const char *name, const QByteArray &value) {
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    };
    restore("LC_ALL", all);
    restore("LC_PAPER", paper);
}

QTEST_MAIN(PagePreviewTest)
#include "PagePreviewTest.moc"
