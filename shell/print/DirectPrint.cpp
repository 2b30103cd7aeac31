#include "shell/print/DirectPrint.h"

#include "shell/print/ReportPrinter.h"

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

std::optional<PrintOutcome> PrintDirectly(QWidget *parent, std::string_view report, AntraSection antra,
                                          const QString &chartName) {
    const std::vector<std::string_view> pages = PagesToPrint(report, antra);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageMargins({paperMargin, paperMargin, paperMargin, paperMargin}, QPageLayout::Millimeter);
    printer.setDocName(JobName(chartName));
    printer.setCreator(QGuiApplication::applicationName());
    QPrintDialog dialog(&printer, parent);
    dialog.setMinMax(1, static_cast<int>(pages.size()));
    dialog.setFromTo(1, static_cast<int>(pages.size()));
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    const WaitCursor waiting;
    PrintOn(printer, pages);
    return printer.outputFormat() == QPrinter::PdfFormat ? PrintOutcome{printer.outputFileName(), {}}
                                                         : PrintOutcome{{}, printer.printerName()};
}

} // namespace kelvaro
