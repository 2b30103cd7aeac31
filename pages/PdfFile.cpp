#include "pages/PdfFile.h"

#include "report/ReportFile.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QSaveFile>

namespace kelvaro {

std::optional<QByteArray> PdfOf(const HoroscopePages &pages, const PageProgress &progress) {
    QBuffer document;
    document.open(QIODevice::WriteOnly);
    QPdfWriter writer(&document);
    writer.setResolution(1200);
    writer.setPageSize(QPageSize(pages.Paper(), QPageSize::Point));
    writer.setPageMargins({});
    writer.setTitle(pages.Title());
    QPainter painter(&writer);
    for (int page = 0; page < pages.Count(); ++page) {
        if (!progress(page, pages.Count())) {
            return std::nullopt;
        }
        if (page > 0) {
            writer.newPage();
        }
        pages.Paint(page, painter);
    }
    painter.end();
    return document.data();
}

void WriteWholeFile(const QString &name, const QByteArray &content) {
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        throw ReportFileError((name + QStringLiteral(": ") + file.errorString()).toStdString());
    }
}

} // namespace kelvaro
