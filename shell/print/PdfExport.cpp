#include "shell/print/PdfExport.h"

#include "drawing/WholeFile.h"
#include "pages/PdfFile.h"

#include <QProgressDialog>
#include <QPushButton>

namespace kelvaro {

bool WritePdfFile(QWidget *parent, const HoroscopePages &pages, const QString &file,
                  std::chrono::milliseconds patience) {
    QProgressDialog progress(parent);
    progress.setObjectName(QStringLiteral("pdfProgress"));
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setLabelText(QObject::tr("The pages are being written ..."));
    progress.setCancelButtonText(QObject::tr("Cancel"));
    progress.setMinimumDuration(static_cast<int>(patience.count()));
    progress.setRange(0, pages.Count());
    const auto document = PdfOf(pages, [&progress](int done, int /*count*/) {
        progress.setValue(done);
        return !progress.wasCanceled();
    });
    if (!document) {
        return false;
    }
    WriteWholeFile(file, *document);
    return true;
}

} // namespace kelvaro
