#include "drawing/StandIns.h"

#include <QChar>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <array>

namespace kelvaro {

namespace {

constexpr QChar whiteSquare = u'\u25a1';
constexpr char32_t firstDoubtful = U'\u0250'; // all fonts have the letters before it

bool IsDoubtful(QChar each) {
    return each.unicode() >= firstDoubtful;
}

/// Whether the font has drawings of its letters, not only pictures made of dots.
bool HasOutlines(const QRawFont &font) {
    return std::ranges::any_of(std::array{"glyf", "CFF ", "CFF2"},
                               [&font](const char *table) { return !font.fontTable(table).isEmpty(); });
}

/// Whether a font of the machine has the letter. Letters of a script without a font are set in one that has
/// no table of letters, single letters that are missing as the first glyph of another font.
bool HasGlyph(const QString &letter, const QFont &font) {
    QTextLayout layout(letter, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return std::ranges::all_of(runs, [](const QGlyphRun &run) {
        const QRawFont used = run.rawFont();
        return !used.fontTable("cmap").isEmpty() && HasOutlines(used) && !run.glyphIndexes().contains(0U);
    });
}

} // namespace

QString WithStandIns(const QString &text, const QFont &font) {
    if (std::ranges::none_of(text, IsDoubtful)) {
        return text;
    }
    QString shown;
    for (const char32_t letter : text.toStdU32String()) {
        const QString one = QString::fromUcs4(&letter, 1);
        if (letter < firstDoubtful || QChar::category(letter) == QChar::Other_Format || HasGlyph(one, font)) {
            shown += one;
        } else if (!QChar::isMark(letter)) {
            shown += whiteSquare;
        }
    }
    return shown;
}

} // namespace kelvaro
