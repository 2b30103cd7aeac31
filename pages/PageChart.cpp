#include "pages/PageChart.h"

#include "drawing/HouseFonts.h"
#include "drawing/TextOf.h"
#include "pages/PageType.h"

#include <algorithm>

namespace kelvaro {

namespace {

constexpr double aboveNote = 2;
constexpr double leastDetails = 8.5; // of a heading; everything in it may shrink by as much as this may
constexpr double usualDetails = 9.5;

TextStyle CellNoteStyle() {
    return {SansFont(leastType), figureColour, 9.6};
}

/// Sizes in sides of the square, from sizes in points.
ChartSizes SizesOf(const ChartSetting &setting) {
    constexpr double usualCommon = 0.85; // of the size of the text
    const auto inSides = [&setting](double points) { return points / setting.side; };
    ChartSizes sizes;
    sizes.text = inSides(setting.text);
    sizes.leastCommon = inSides(std::max(setting.text * usualCommon, leastType));
    sizes.least = inSides(leastType);
    sizes.number = inSides(setting.number);
    sizes.heading = {inSides(setting.title), inSides(setting.text), inSides(usualDetails),
                     inSides(setting.text), leastDetails / usualDetails};
    sizes.headingHeight = inSides(setting.headingHeight);
    return sizes;
}

/// "* Leo: Sun Moo", for one cell without its sign.
QString NoteOf(const PageChart &chart, const std::vector<std::size_t> &cells) {
    QStringList notes;
    for (const std::size_t cell : cells) {
        QStringList words{QStringLiteral("*")};
        if (cells.size() > 1) {
            words << TextOf(chart.cellNames.at(cell)) + u':';
        }
        for (const CellEntry &entry : chart.content.cells.at(cell).entries) {
            words << entry.name;
            if (!entry.figure.isEmpty()) {
                words << entry.figure + u' ';
            }
        }
        notes << words.join(u' ').trimmed();
    }
    return notes.join(QStringLiteral("   "));
}

} // namespace

std::array<std::string, 12> CellNamesOf(ChartStyle style, const Names &names, int firstSign) {
    std::array<std::string, 12> cells = names.RasiNames;
    if (style == ChartStyle::North && firstSign > 0) {
        std::rotate(cells.begin(), cells.begin() + (firstSign - 1), cells.end());
    }
    return cells;
}

double HeightOf(ChartStyle style, const ChartSetting &setting) {
    return setting.side + (style == ChartStyle::North ? setting.headingHeight : 0);
}

void AddChart(const PageChart &chart, ChartSetting setting, double noteRoom, double indent,
              PageSetter &setter) {
    constexpr int mostTries = 4;
    const double column = setting.side;
    const ChartFont font(SansFont(setting.text), setting.linePitch);
    for (int tries = 1;; ++tries) {
        const auto drawing = std::make_shared<const ChartDrawing>(chart.content, font, SizesOf(setting));
        PageBlock note;
        note.Skip(aboveNote);
        note.AddLines(NoteOf(chart, drawing->CellsLeftOut()), CellNoteStyle(), 0, column);
        const double missing = note.Height() - noteRoom - (column - setting.side);
        if (missing > 0 && tries < mostTries) {
            setting.side -= missing;
            continue;
        }
        const double left = indent + (column - setting.side) / 2;
        const QPointF corner(setter.Area().left() + left,
                             setter.Top() + drawing->HeadingHeight() * setting.side);
        setter.Add(ChartItem{drawing, {corner, QSizeF(setting.side, setting.side)}, setting.lineWidth});
        for (PageItem &item : note.ItemsAt({setter.Area().left() + indent, corner.y() + setting.side})) {
            setter.Add(std::move(item));
        }
        return;
    }
}

} // namespace kelvaro
