#include "shell/print/ReportPrinter.h"

#include "drawing/TextOf.h"
#include "report/ReportFile.h"
#include "report/TextLayout.h"

#include <QBuffer>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace kelvaro {

namespace {

constexpr std::size_t pagesWithoutAntra = 6;
constexpr int measuredSize = 1000; // pixels of the type in which texts are measured

QStringList LinesOf(std::string_view page) {
    static const QString separator =
        QString::fromLatin1(lineEnd.data(), static_cast<qsizetype>(lineEnd.size()));
    QStringList lines = TextOf(page).split(separator);
    while (!lines.isEmpty() && lines.back().trimmed().isEmpty()) {
        lines.pop_back();
    }
    return lines;
}

/// The type of a sheet, and where its lines begin.
struct SheetLayout {
    QFont font;
    double left = 0;
};

/// The report's font in the largest size that keeps the pages inside the area, in whose middle they stand.
SheetLayout FittedLayout(const std::vector<QStringList> &pages, const QSizeF &area) {
    SheetLayout layout{ReportFont()};
    layout.font.setHintingPreference(QFont::PreferNoHinting);
    layout.font.setPixelSize(measuredSize);
    const QFontMetricsF metrics(layout.font);
    // A name in another script may have letters wider than the columns.
    double width = metrics.horizontalAdvance(QString(pageWidth, u'0'));
    qsizetype lineCount = 1;
    for (const QStringList &lines : pages) {
        lineCount = std::max(lineCount, lines.size());
        for (const QString &line : lines) {
            width = std::max(width, metrics.horizontalAdvance(line));
        }
    }
    const double height = metrics.height() * static_cast<double>(lineCount);
    const double scale = std::min(area.width() / width, area.height() / height);
    const int size = std::max(1, static_cast<int>(measuredSize * scale));
    layout.font.setPixelSize(size);
    layout.left = std::max(0.0, (area.width() - width * size / measuredSize) / 2);
    return layout;
}

void DrawPage(QPainter &painter, double left, const QStringList &lines) {
    const QFontMetricsF metrics(painter.font());
    double baseline = metrics.ascent();
    for (const QString &line : lines) {
        painter.drawText(QPointF(left, baseline), line);
        baseline += metrics.height();
    }
}

/// The places of the pages that lie in the ranges. Raises ReportPrintError where none does.
std::vector<std::size_t> PlacesIn(const QPageRanges &ranges, std::size_t pageCount) {
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < pageCount; ++place) {
        if (ranges.isEmpty() || ranges.contains(static_cast<int>(place) + 1)) {
            places.push_back(place);
        }
    }
    if (places.empty()) {
        throw ReportPrintError("None of the " + std::to_string(pageCount) +
                               " pages of the report lies in the range that was chosen.");
    }
    return places;
}

/// The places as a printer's copies bring them, one after the other or page by page.
std::vector<std::size_t> Copies(std::vector<std::size_t> places, const QPrinter &printer) {
    if (printer.pageOrder() == QPrinter::LastPageFirst) {
        std::ranges::reverse(places);
    }
    const auto count = static_cast<std::size_t>(std::max(1, printer.copyCount()));
    std::vector<std::size_t> copies;
    for (std::size_t i = 0; i < count * places.size(); ++i) {
        copies.push_back(printer.collateCopies() ? places.at(i % places.size()) : places.at(i / count));
    }
    return copies;
}

/// Prints the pages at these places, in this order.
void PrintPlaces(const std::vector<std::size_t> &places, const std::vector<std::string_view> &pages,
                 QPagedPaintDevice &device) {
    std::vector<QStringList> lines;
    lines.reserve(pages.size());
    std::ranges::transform(pages, std::back_inserter(lines), LinesOf);
    QPainter painter;
    if (!painter.begin(&device)) {
        throw ReportPrintError("The printer could not be started.");
    }
    const SheetLayout layout = FittedLayout(lines, QSizeF(device.width(), device.height()));
    painter.setFont(layout.font);
    bool isFirst = true;
    for (const std::size_t place : places) {
        if (!isFirst && !device.newPage()) {
            throw ReportPrintError("The printer did not take page " + std::to_string(place + 1) +
                                   " of the report.");
        }
        isFirst = false;
        DrawPage(painter, layout.left, lines.at(place));
    }
    if (!painter.end()) {
        throw ReportPrintError("The printer did not bring the report to its end.");
    }
}

/// A PDF file has its copies and their order in itself. It is made in memory, as a disk that fills up on the
/// way would leave half a document behind.
void WritePdf(const QPrinter &printer, const std::vector<std::string_view> &pages) {
    QBuffer document;
    document.open(QIODevice::WriteOnly);
    QPdfWriter writer(&document);
    writer.setResolution(printer.resolution());
    writer.setPageLayout(printer.pageLayout());
    writer.setTitle(printer.docName());
    writer.setCreator(printer.creator());
    PrintPlaces(Copies(PlacesIn(printer.pageRanges(), pages.size()), printer), pages, writer);
    WriteReportFile(QFile::encodeName(printer.outputFileName()).toStdString(), document.data().toStdString());
}

} // namespace

QFont ReportFont() {
    QFont font(QStringLiteral("Courier New"));
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    if (QFontInfo(font).fixedPitch()) {
        return font;
    }
    font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // A theme may name any font for fixed pitch.
    const QStringList families = QFontDatabase::families();
    for (auto family = families.begin(); family != families.end() && !QFontInfo(font).fixedPitch();
         ++family) {
        if (QFontDatabase::isFixedPitch(*family)) {
            font.setFamilies({*family});
        }
    }
    return font;
}

std::vector<std::string_view> PagesToPrint(std::string_view report, AntraSection antra) {
    std::vector<std::string_view> pages = PagesOf(report);
    if (!pages.empty() && LinesOf(pages.back()).isEmpty()) {
        pages.pop_back();
    }
    if (antra == AntraSection::Without && pages.size() > pagesWithoutAntra) {
        pages.resize(pagesWithoutAntra);
    }
    return pages;
}

void PrintPages(const std::vector<std::string_view> &pages, QPagedPaintDevice &device) {
    PrintPlaces(PlacesIn(device.pageRanges(), pages.size()), pages, device);
}

void PrintOn(QPrinter &printer, const std::vector<std::string_view> &pages) {
    if (printer.printRange() != QPrinter::PageRange) {
        printer.setPageRanges({});
    }
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        WritePdf(printer, pages);
        return;
    }
    if (!printer.isValid()) {
        throw ReportPrintError("There is no printer that can print the report.");
    }
    PrintPages(pages, printer);
    if (printer.printerState() == QPrinter::Error) {
        throw ReportPrintError("The printer " + printer.printerName().toStdString() + " reports an error.");
    }
}

} // namespace kelvaro
