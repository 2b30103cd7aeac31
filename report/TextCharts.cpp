#include "report/TextCharts.h"

#include "panchanga/Sign.h"
#include "report/TextLayout.h"
#include "runtime/Numbers.h"
#include "runtime/Texts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <variant>

namespace kelvaro {

namespace {

constexpr std::size_t titleWidth = 23;
constexpr std::size_t signWidth = 2;
constexpr std::size_t nameLength = 3;

/// Characters of a cell, 1 to 12, from `start` on, counted from 1.
struct Cut {
    std::size_t cell;
    std::size_t start;
    std::size_t width;
};

/// The sign number of the house that a cell, 1 to 12, shows.
struct SignOf {
    std::size_t cell;
};

/// The title in the open centre of a drawing.
struct Title {};

using Piece = std::variant<std::string_view, Cut, SignOf, Title>;
/// Pieces that stand one behind the other; those that a line does not need are empty literals.
using Line = std::array<Piece, 11>;

constexpr std::array<Line, 21> southLines{{
    {{"*************************************************"}},
    {{"*", Cut{1, 1, 11}, "*", Cut{2, 1, 11}, "*", Cut{3, 1, 11}, "*", Cut{4, 1, 11}, "*"}},
    {{"*", Cut{1, 13, 11}, "*", Cut{2, 13, 11}, "*", Cut{3, 13, 11}, "*", Cut{4, 13, 11}, "*"}},
    {{"*", Cut{1, 25, 11}, "*", Cut{2, 25, 11}, "*", Cut{3, 25, 11}, "*", Cut{4, 25, 11}, "*"}},
    {{"*           *           *           *           *"}},
    {{"*************************************************"}},
    {{"*", Cut{5, 1, 11}, "*                       *", Cut{6, 1, 11}, "*"}},
    {{"*", Cut{5, 13, 11}, "*                       *", Cut{6, 13, 11}, "*"}},
    {{"*", Cut{5, 25, 11}, "*                       *", Cut{6, 25, 11}, "*"}},
    {{"*           *                       *           *"}},
    {{"*************", Title{}, "*************"}},
    {{"*", Cut{7, 1, 11}, "*                       *", Cut{8, 1, 11}, "*"}},
    {{"*", Cut{7, 13, 11}, "*                       *", Cut{8, 13, 11}, "*"}},
    {{"*", Cut{7, 25, 11}, "*                       *", Cut{8, 25, 11}, "*"}},
    {{"*           *                       *           *"}},
    {{"*************************************************"}},
    {{"*", Cut{9, 1, 11}, "*", Cut{10, 1, 11}, "*", Cut{11, 1, 11}, "*", Cut{12, 1, 11}, "*"}},
    {{"*", Cut{9, 13, 11}, "*", Cut{10, 13, 11}, "*", Cut{11, 13, 11}, "*", Cut{12, 13, 11}, "*"}},
    {{"*", Cut{9, 25, 11}, "*", Cut{10, 25, 11}, "*", Cut{11, 25, 11}, "*", Cut{12, 25, 11}, "*"}},
    {{"*           *           *           *           *"}},
    {{"*************************************************"}},
}};

constexpr std::array<Line, 22> northLines{{
    {{"* * * * * * * * * * * * * * * * * * * * *"}},
    {{"* * ", Cut{2, 1, 15}, " * ", Cut{4, 1, 15}, " * * "}},
    {{"*   * ", Cut{2, 17, 11}, " *   * ", Cut{4, 17, 11}, " *   *"}},
    {{"* ", Cut{1, 1, 3}, " * ", Cut{2, 29, 7}, " *   ", Cut{3, 1, 3}, " * ", Cut{4, 29, 7}, " * ",
      Cut{5, 1, 3}, " *"}},
    {{"*", Cut{1, 5, 7}, "*  ", SignOf{2}, " *  ", Cut{3, 5, 7}, "  *  ", SignOf{4}, " *", Cut{5, 5, 7},
      "*"}},
    {{"*", Cut{1, 13, 7}, SignOf{1}, "* *  ", Cut{3, 13, 11}, "  * *", SignOf{5}, Cut{5, 13, 7}, "*"}},
    {{"*", Cut{1, 21, 7}, "  * *    ", Cut{3, 25, 7}, "    * *  ", Cut{5, 21, 7}, "*"}},
    {{"*", Cut{1, 30, 7}, "*     *    ", Cut{3, 33, 3}, "    *     *", Cut{5, 30, 7}, "*"}},
    {{"*     *   ", Cut{6, 1, 3}, "   *       *   ", Cut{7, 1, 3}, "   *     *"}},
    {{"*   *   ", Cut{6, 5, 7}, "   * ", SignOf{3}, "*   ", Cut{7, 5, 7}, "   *   *"}},
    {{"* *   ", Cut{6, 13, 11}, "   *   ", Cut{7, 13, 11}, "   * *"}},
    {{"* *     ", Cut{6, 25, 7}, "   ", SignOf{6}, "*", SignOf{7}, "   ", Cut{7, 25, 7}, "     * *"}},
    {{"*   *     ", Cut{6, 33, 3}, "     * ", SignOf{10}, "*     ", Cut{7, 33, 3}, "     *   *"}},
    {{"* ", Cut{8, 1, 3}, " *         *  ", Cut{10, 1, 3}, "  *         * ", Cut{12, 1, 3}, " *"}},
    {{"*", Cut{8, 5, 7}, "*     *  ", Cut{10, 5, 7}, "  *     *", Cut{12, 5, 7}, "*"}},
    {{"*", Cut{8, 13, 7}, SignOf{8}, "* *  ", Cut{10, 13, 11}, "  * *", SignOf{12}, Cut{12, 13, 7}, "*"}},
    {{"*", Cut{8, 21, 7}, "  * *    ", Cut{10, 25, 7}, "    * *  ", Cut{12, 21, 7}, "*"}},
    {{"*", Cut{8, 29, 7}, "*  ", SignOf{9}, " *    ", Cut{10, 33, 3}, "    *  ", SignOf{11}, " *",
      Cut{12, 29, 7}, "*"}},
    {{"*     * ", Cut{9, 1, 7}, " *       * ", Cut{11, 1, 7}, " *     *"}},
    {{"*   * ", Cut{9, 9, 11}, " *   * ", Cut{11, 9, 11}, " *   *"}},
    {{"* * ", Cut{9, 21, 15}, " * ", Cut{11, 21, 15}, " * *"}},
    {{"* * * * * * * * * * * * * * * * * * * * *"}},
}};

constexpr std::array<Line, 22> eastLines{{
    {{"* * * * * * * * * * * * * * * * * * * * * *"}},
    {{"* *", Cut{2, 1, 11}, "* ", Cut{3, 1, 7}, "     *", Cut{4, 1, 11}, "* *"}},
    {{"*", Cut{1, 1, 3}, "*  ", Cut{2, 13, 7}, "* ", Cut{3, 9, 7}, "     *", Cut{4, 13, 7}, "  *",
      Cut{5, 1, 3}, "*"}},
    {{"*", Cut{1, 5, 3}, "  *", Cut{2, 21, 7}, "* ", Cut{3, 13, 7}, "     *", Cut{4, 21, 7}, "*  ",
      Cut{5, 5, 3}, "*"}},
    {{"*", Cut{1, 9, 7}, "*  ", Cut{2, 29, 3}, "* ", Cut{3, 25, 7}, "     *", Cut{4, 29, 3}, "  *",
      Cut{5, 9, 7}, "*"}},
    {{"*", Cut{1, 17, 7}, "  *", Cut{2, 33, 3}, "*   ", Cut{3, 33, 3}, "       *", Cut{4, 33, 3}, "*  ",
      Cut{5, 17, 7}, "*"}},
    {{"*", Cut{1, 25, 11}, "* *             * *", Cut{5, 25, 11}, "*"}},
    {{"* * * * * * * * * * * * * * * * * * * * * *"}},
    {{"* ", Cut{6, 1, 11}, " *             * ", Cut{7, 1, 11}, " *"}},
    {{"* ", Cut{6, 13, 11}, " *             * ", Cut{7, 13, 11}, " *"}},
    {{"* ", Cut{6, 25, 11}, " *             * ", Cut{7, 25, 11}, " *"}},
    {{"*             *             *             *"}},
    {{"*             *             *             *"}},
    {{"*             *             *             *"}},
    {{"* * * * * * * * * * * * * * * * * * * * * *"}},
    {{"*", Cut{8, 1, 11}, "* *             * *", Cut{12, 1, 11}, "*"}},
    {{"*", Cut{8, 13, 7}, "  *", Cut{9, 1, 3}, "*   ", Cut{10, 1, 3}, "       *", Cut{11, 1, 3}, "*  ",
      Cut{12, 13, 7}, "*"}},
    {{"*", Cut{8, 21, 7}, "*  ", Cut{9, 5, 3}, "* ", Cut{10, 5, 7}, "     *", Cut{11, 5, 3}, "  *",
      Cut{12, 21, 7}, "*"}},
    {{"*", Cut{8, 29, 3}, "  *", Cut{9, 9, 7}, "* ", Cut{10, 13, 7}, "     *", Cut{11, 9, 7}, "*  ",
      Cut{12, 29, 3}, "*"}},
    {{"*", Cut{8, 33, 3}, "*  ", Cut{9, 17, 7}, "* ", Cut{10, 21, 7}, "     *", Cut{11, 17, 7}, "  *",
      Cut{12, 33, 3}, "*"}},
    {{"* *", Cut{9, 25, 11}, "* ", Cut{10, 29, 7}, "     *", Cut{11, 25, 11}, "* *"}},
    {{"* * * * * * * * * * * * * * * * * * * * * *"}},
}};

struct Drawing {
    std::size_t width; ///< in characters, for centring; blanks that end a line may stand out
    std::span<const Line> lines;
};

constexpr Drawing southDrawing{49, southLines};
constexpr Drawing northDrawing{41, northLines};
constexpr Drawing eastDrawing{43, eastLines};

std::span<const Line> LinesOf(ChartStyle style) {
    switch (style) {
    case ChartStyle::South:
        return southLines;
    case ChartStyle::North:
        return northLines;
    case ChartStyle::East:
        return eastLines;
    case ChartStyle::Unknown:
        break;
    }
    return {};
}

/// What a drawing shows.
struct ChartTexts {
    std::array<std::string, 12> cells;
    std::array<std::string, 12> signNumbers;
    std::string_view title;
};

/// The title in its place in the open centre. Half a blank is rounded to an even number of blanks.
std::string CentreTitle(std::string_view title) {
    const double left = RoundHalfToEven(12 - static_cast<double>(CharacterCount(title)) / 2);
    std::string padded(static_cast<std::size_t>(std::max(left, 0.0)), ' ');
    padded.append(title);
    return Field(padded, titleWidth);
}

/// The text of a piece, whichever kind it is.
class PieceText {
public:
    explicit PieceText(const ChartTexts &texts) : texts_(texts) {}

    std::string operator()(std::string_view literal) const { return std::string(literal); }
    std::string operator()(const Cut &cut) const {
        return FieldFrom(texts_.cells.at(cut.cell - 1), cut.start, cut.width);
    }
    std::string operator()(const SignOf &sign) const {
        return RightField(texts_.signNumbers.at(sign.cell - 1), signWidth);
    }
    std::string operator()(const Title & /*title*/) const { return CentreTitle(texts_.title); }

private:
    const ChartTexts &texts_;
};

std::string Indented(std::size_t leftMargin, std::string_view line) {
    return std::string(leftMargin, ' ').append(line);
}

std::size_t MarginOf(const Drawing &drawing) {
    return (pageWidth - drawing.width) / 2;
}

std::string TitleLine(const Drawing &drawing, std::string_view title) {
    const std::string_view shown = FirstCharacters(title, drawing.width);
    return Indented(MarginOf(drawing) + (drawing.width - CharacterCount(shown)) / 2, shown);
}

std::vector<std::string> Drawn(const Drawing &drawing, const ChartTexts &texts) {
    const PieceText textOf(texts);
    std::vector<std::string> lines;
    for (const Line &line : drawing.lines) {
        std::string text;
        for (const Piece &piece : line) {
            text += std::visit(textOf, piece);
        }
        lines.push_back(Indented(MarginOf(drawing), text));
    }
    return lines;
}

/// Without this line the order of the signs in a drawing could only be guessed.
std::string SignOrderLine(std::span<const std::size_t> cellsOfRows,
                          std::span<const std::string, 12> signNames) {
    std::string text("Cells by row:");
    auto name = signNames.begin();
    for (const std::size_t cells : cellsOfRows) {
        for (std::size_t cell = 0; cell < cells; ++cell, ++name) {
            text.append(" ").append(Field(*name, nameLength));
        }
        text += name == signNames.end() ? "" : " /";
    }
    return Indented((pageWidth - CharacterCount(text)) / 2, text);
}

/// The tightened texts of the cells; empty without a row.
std::array<std::string, 12> CellsOf(const store::Recordset &row) {
    std::array<std::string, 12> cells;
    if (row.IsEndOfFile()) {
        return cells;
    }
    for (std::size_t i = 0; i < cells.size(); ++i) {
        cells.at(i) = TightenBlanks(row.Text(i));
    }
    return cells;
}

/// The sign numbers of the houses 1 to 12.
std::array<std::string, 12> SignNumbersFrom(Sign sign) {
    std::array<std::string, 12> numbers;
    for (std::string &number : numbers) {
        number = std::to_string(sign.Number());
        sign = sign.Next();
    }
    return numbers;
}

std::string Reduced(std::string_view label, std::string_view separator) {
    std::string reduced;
    for (std::size_t end = 0; end != std::string_view::npos;) {
        end = label.find(separator);
        reduced.append(ReducedName(Trimmed(label.substr(0, end)))).append(" ");
        label.remove_prefix(end == std::string_view::npos ? label.size() : end + separator.size());
    }
    return std::string(Trimmed(reduced));
}

} // namespace

std::string ReduceCellLines(std::string_view label) {
    return Reduced(label, "\r\n");
}

std::string ReduceCellPairs(std::string_view label) {
    return Reduced(label, "  ");
}

std::string ReduceCellBlanks(std::string_view label) {
    return Reduced(label, " ");
}

std::string_view ReducedName(std::string_view name) {
    return FirstCharacters(name, nameLength);
}

std::string TightenBlanks(std::string_view text) {
    constexpr std::string_view run = "   ";
    std::string tightened;
    for (std::size_t found = text.find(run); found != std::string_view::npos; found = text.find(run)) {
        tightened.append(text.substr(0, found)).append(" ");
        text.remove_prefix(found + run.size());
    }
    return tightened.append(text);
}

std::vector<std::string> SouthTextChart(const store::Recordset &cells, std::string_view title,
                                        std::span<const std::string, 12> signNames) {
    constexpr std::array<std::size_t, 4> cellsOfRows{4, 2, 2, 4};
    std::vector<std::string> lines = Drawn(southDrawing, {CellsOf(cells), {}, title});
    lines.push_back(SignOrderLine(cellsOfRows, signNames));
    return lines;
}

std::vector<std::string> NorthTextChart(const store::Recordset &cells, std::string_view title,
                                        int firstSign) {
    const ChartTexts texts{CellsOf(cells), SignNumbersFrom(Sign(firstSign)), title};
    std::vector<std::string> lines = Drawn(northDrawing, texts);
    lines.insert(lines.begin(), TitleLine(northDrawing, title));
    return lines;
}

std::vector<std::string> EastTextChart(const store::Recordset &cells, std::string_view title,
                                       std::span<const std::string, 12> signNames) {
    constexpr std::array<std::size_t, 3> cellsOfRows{5, 2, 5};
    std::vector<std::string> lines = Drawn(eastDrawing, {CellsOf(cells), {}, title});
    lines.insert(lines.begin(), TitleLine(eastDrawing, title));
    lines.push_back(SignOrderLine(cellsOfRows, signNames));
    return lines;
}

std::array<std::string, 12> CellsShown(const store::Recordset &cells, ChartStyle style) {
    const std::array<std::string, 12> texts = CellsOf(cells);
    std::array<std::string, 12> shown;
    for (const Line &line : LinesOf(style)) {
        for (const Piece &piece : line) {
            if (const Cut *cut = std::get_if<Cut>(&piece)) {
                // The cuts of a cell follow one another in its text.
                std::string &text = shown.at(cut->cell - 1);
                text =
                    Field(text, cut->start - 1) + FieldFrom(texts.at(cut->cell - 1), cut->start, cut->width);
            }
        }
    }
    return shown;
}

} // namespace kelvaro
