#include "pages/PdfFile.h"

#include "pages/PdfAuthor.h"
#include "report/ReportFile.h"

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>

#include <filesystem>
#include <string_view>

namespace kelvaro {

std::optional<QByteArray> PdfOf(const HoroscopePages &pages, const PageProgress &progress) {
    constexpr int dotsPerInch = 1200;
    QBuffer document;
    document.open(QIODevice::WriteOnly);
    QPdfWriter writer(&document);
    writer.setResolution(dotsPerInch);
    writer.setPageSize(QPageSize(pages.Paper(), QPageSize::Point));
    writer.setPageMargins({});
    writer.setTitle(pages.Title());
    writer.setCreator(QStringLiteral("Kelvaro Basic"));
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
    return WithAuthor(document.data(), pages.Author());
}

void WriteWholeFile(const QString &name, const QByteArray &content) {
    WriteReportFile(std::filesystem::path(QFile::encodeName(name).toStdString()),
                    std::string_view(content.constData(), static_cast<std::size_t>(content.size())));
}

} // namespace kelvaro
