#include "drawing/TablePicture.h"

#include "drawing/ChartColours.h"
#include "drawing/HouseFonts.h"
#include "drawing/PointRuler.h"
#include "drawing/PutText.h"
#include "drawing/TableDrawing.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace kelvaro {

namespace {

// In points.
constexpr double margin = 12;
constexpr double leastWidth = 240; // for the lines above a narrow table
constexpr double titleSize = 15;
constexpr double whoseSize = 9.5;
constexpr double noteSize = 8.5;
constexpr double lineHeight = 1.35; // font sizes
constexpr double gapBelowHeading = 6;
constexpr double gapAboveNote = 7;

struct TextPiece {
    QString text;
    QFont font;
    QColor colour;
    double left = 0;
    double baseline = 0;
};

/// Adds the lines of a text, each in the middle of the width, and returns the height below them.
double AddLines(std::vector<TextPiece> &lines, const QString &text, const QFont &font, const QColor &colour,
                double width, double top) {
    for (const TextLine &line : LinesInPoints(text, font, width)) {
        lines.push_back({line.text, font, colour, (width - line.width) / 2, top + font.pointSizeF()});
        top += lineHeight * font.pointSizeF();
    }
    return top;
}

} // namespace

Picture PictureOf(const TableContent &content, const ChartHeading &heading, const QString &note) {
    const auto table = std::make_shared<const TableDrawing>(content);
    const double width = std::max(table->Width(), leastWidth);
    std::vector<TextPiece> lines;
    double top = AddLines(lines, heading.title, SerifFont(titleSize, Weight::Bold), lineColour, width, 0);
    top = AddLines(lines, WhoseLine(heading), SansFont(whoseSize), figureColour, width, top);
    top += gapBelowHeading;
    double bottom = top + table->Size().height();
    if (!note.isEmpty()) {
        bottom += gapAboveNote;
        for (const QString &line : note.split(u'\n')) {
            bottom = AddLines(lines, line, SansFont(noteSize), figureColour, width, bottom);
        }
    }
    return {NameAndTitle(heading),
            {width + 2 * margin, bottom + 2 * margin},
            [table, width, top, lines = std::move(lines)](QPainter &painter) {
                const double point = DotsPerPoint(*painter.device());
                for (const TextPiece &line : lines) {
                    painter.setPen(line.colour);
                    PutText(painter, QPointF(margin + line.left, margin + line.baseline) * point, line.text,
                            line.font);
                }
                table->Paint(painter, QPointF(margin + (width - table->Width()) / 2, margin + top) * point);
            }};
}

} // namespace kelvaro
