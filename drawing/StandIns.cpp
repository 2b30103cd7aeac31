#include "drawing/StandIns.h"

#include <QChar>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <array>

namespace kelvaro {

namespace {

constexpr QChar whiteSquare = u'\u25a1';
constexpr char32_t firstDoubtful = U'\u0250'; // the program's own fonts have the letters before it

bool IsDoubtful(QChar each) {
    return each.unicode() >= firstDoubtful;
}

/// Whether the font draws letters: it knows which it has, and has outlines of them, not only pictures made of
/// dots.
bool DrawsLetters(const QRawFont &font) {
    return !font.fontTable("cmap").isEmpty() &&
           std::ranges::any_of(std::array{"glyf", "CFF ", "CFF2"},
                               [&font](const char *table) { return !font.fontTable(table).isEmpty(); });
}

/// Which letters can be drawn in a font or in those of the machine that help it out.
class GlyphFinder {
public:
    explicit GlyphFinder(const QFont &font) : font_(font) {}

    /// Letters of a script without a font are set in one that has no table of letters, single letters that
    /// are missing as the first glyph of another font.
    bool HasGlyph(const QString &letter) {
        QTextLayout layout(letter, font_);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        const QList<QGlyphRun> runs = layout.glyphRuns();
        return std::ranges::all_of(runs, [this](const QGlyphRun &run) {
            return !run.glyphIndexes().contains(0U) && IsUsable(run.rawFont());
        });
    }

private:
    /// Each font is looked at once, since a look copies its tables, which in a large font are megabytes.
    bool IsUsable(const QRawFont &font) {
        const auto known = usable_.constFind(font);
        return known != usable_.cend() ? *known : *usable_.insert(font, DrawsLetters(font));
    }

    QFont font_;
    QHash<QRawFont, bool> usable_;
};

} // namespace

QString WithStandIns(const QString &text, const QFont &font) {
    if (std::ranges::none_of(text, IsDoubtful)) {
        return text;
    }
    GlyphFinder finder(font);
    QString shown;
    for (const char32_t letter : text.toStdU32String()) {
        const QString one = QString::fromUcs4(&letter, 1);
        if (letter < firstDoubtful || QChar::category(letter) == QChar::Other_Format ||
            finder.HasGlyph(one)) {
            shown += one;
        } else if (!QChar::isMark(letter)) {
            shown += whiteSquare;
        }
    }
    return shown;
}

} // namespace kelvaro
