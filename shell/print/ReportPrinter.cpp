#include "shell/print/ReportPrinter.h"

#include "drawing/TextOf.h"
#include "report/ReportFile.h"
#include "report/TextLayout.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <optional>

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

PrintJob JobOf(const std::vector<std::string_view> &pages) {
    std::vector<QStringList> lines;
    lines.reserve(pages.size());
    std::ranges::transform(pages, std::back_inserter(lines), LinesOf);
    return {lines.size(), [lines, layout = std::optional<SheetLayout>()](
                              QPainter &painter, const QPagedPaintDevice &device, std::size_t sheet) mutable {
                if (!layout) {
                    layout = FittedLayout(lines, QSizeF(device.width(), device.height()));
                }
                painter.setFont(layout->font);
                DrawPage(painter, layout->left, lines.at(sheet));
            }};
}

} // namespace kelvaro
