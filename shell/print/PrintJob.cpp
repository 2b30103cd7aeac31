#include "shell/print/PrintJob.h"

#include "drawing/WholeFile.h"

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>

#include <algorithm>
#include <string>
#include <vector>

namespace kelvaro {

namespace {

/// The places of the sheets that lie in the ranges. Raises ReportPrintError where none does.
std::vector<std::size_t> PlacesIn(const QPageRanges &ranges, std::size_t sheetCount) {
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < sheetCount; ++place) {
        if (ranges.isEmpty() || ranges.contains(static_cast<int>(place) + 1)) {
            places.push_back(place);
        }
    }
    if (places.empty()) {
        throw ReportPrintError("None of the " + std::to_string(sheetCount) +
                               " pages lies in the range that was chosen.");
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

/// Prints the sheets at these places, in this order.
void PrintPlaces(const std::vector<std::size_t> &places, const PrintJob &job, QPagedPaintDevice &device) {
    QPainter painter;
    if (!painter.begin(&device)) {
        throw ReportPrintError("The printer could not be started.");
    }
    bool isFirst = true;
    for (const std::size_t place : places) {
        if (!isFirst && !device.newPage()) {
            throw ReportPrintError("The printer did not take page " + std::to_string(place + 1) + ".");
        }
        isFirst = false;
        job.paint(painter, device, place);
    }
    if (!painter.end()) {
        throw ReportPrintError("The printer did not bring the pages to their end.");
    }
}

/// A PDF file has its copies and their order in itself. It is made in memory, as a disk that fills up on the
/// way would leave half a document behind.
void WritePdf(const QPrinter &printer, const PrintJob &job) {
    QBuffer document;
    document.open(QIODevice::WriteOnly);
    QPdfWriter writer(&document);
    writer.setResolution(printer.resolution());
    writer.setPageLayout(printer.pageLayout());
    writer.setTitle(printer.docName());
    writer.setCreator(printer.creator());
    PrintPlaces(Copies(PlacesIn(printer.pageRanges(), job.sheetCount), printer), job, writer);
    WriteWholeFile(printer.outputFileName(), document.data());
}

} // namespace

void PrintSheets(const PrintJob &job, QPagedPaintDevice &device) {
    PrintPlaces(PlacesIn(device.pageRanges(), job.sheetCount), job, device);
}

void PrintOn(QPrinter &printer, const PrintJob &job) {
    if (printer.printRange() != QPrinter::PageRange) {
        printer.setPageRanges({});
    }
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        WritePdf(printer, job);
        return;
    }
    if (!printer.isValid()) {
        throw ReportPrintError("There is no printer that can print the pages.");
    }
    PrintSheets(job, printer);
    if (printer.printerState() == QPrinter::Error) {
        throw ReportPrintError("The printer " + printer.printerName().toStdString() + " reports an error.");
    }
}

} // namespace kelvaro
