#include "shell/print/DirectPrint.h"

#include <QDir>
#include <QGuiApplication>
#include <QPrintDialog>

namespace kelvaro {

namespace {

constexpr double paperMargin = 15; // mm

/// Shows that the program is at work while it lives.
class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};

/// The name of the print job, of which print dialogs make a file name.
QString JobName(QString chartName) {
    return chartName.replace(QDir::separator(), u'-');
}

} // namespace

std::optional<PrintOutcome> PrintThroughDialog(QWidget *parent, const PrintJob &job, const QString &chartName,
                                               PaperUse use, std::optional<QPageSize> paper) {
    QPrinter printer(QPrinter::HighResolution);
    if (use == PaperUse::WholePaper) {
        printer.setFullPage(true);
    } else {
        printer.setPageMargins({paperMargin, paperMargin, paperMargin, paperMargin}, QPageLayout::Millimeter);
    }
    if (paper) {
        printer.setPageSize(*paper);
    }
    printer.setDocName(JobName(chartName));
    printer.setCreator(QGuiApplication::applicationName());
    QPrintDialog dialog(&printer, parent);
    dialog.setMinMax(1, static_cast<int>(job.sheetCount));
    dialog.setFromTo(1, static_cast<int>(job.sheetCount));
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    const WaitCursor waiting;
    PrintOn(printer, job);
    return printer.outputFormat() == QPrinter::PdfFormat ? PrintOutcome{printer.outputFileName(), {}}
                                                         : PrintOutcome{{}, printer.printerName()};
}

} // namespace kelvaro
