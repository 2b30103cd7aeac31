#include "pages/PdfFile.h"

#include "pages/PdfAuthor.h"

#include <QBuffer>
#include <QPdfWriter>

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

} // namespace kelvaro
