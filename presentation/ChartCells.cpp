#include "presentation/ChartCells.h"

#include "horoscope/record/Bodies.h"
#include "presentation/AngleText.h"
#include "runtime/RuntimeError.h"

#include <array>
#include <cstddef>
#include <string>

namespace kelvaro {

namespace {

using Cells = std::array<std::string, 12>;

constexpr std::string_view gap = "  ";

/// The twelve cells of one style in one window.
struct CellArray {
    ChartForm HoroscopeForms::*window;
    Cells ChartForm::*style;

    Cells &In(HoroscopeForms &forms) const { return forms.*window.*style; }
};

constexpr CellArray rasiSouth{&HoroscopeForms::frm_rasi, &ChartForm::South};
constexpr CellArray rasiEast{&HoroscopeForms::frm_rasi, &ChartForm::East};
constexpr CellArray rasiNorth{&HoroscopeForms::frm_rasi, &ChartForm::North};
constexpr CellArray navamsaSouth{&HoroscopeForms::frm_Navamsa, &ChartForm::South};
constexpr CellArray navamsaEast{&HoroscopeForms::frm_Navamsa, &ChartForm::East};
constexpr CellArray navamsaNorth{&HoroscopeForms::frm_Navamsa, &ChartForm::North};
constexpr CellArray bhavaSouth{&HoroscopeForms::frm_BhavaChart, &ChartForm::South};
constexpr CellArray bhavaEast{&HoroscopeForms::frm_BhavaChart, &ChartForm::East};
constexpr CellArray bhavaNorth{&HoroscopeForms::frm_BhavaChart, &ChartForm::North};

struct Selection {
    std::int16_t selector;
    CellArray cells;
};

constexpr std::array<Selection, 9> selections{{
    {1, rasiSouth},
    {2, navamsaSouth},
    {3, rasiNorth},
    {4, navamsaNorth},
    {5, rasiEast},
    {6, navamsaEast},
    {7, bhavaNorth},
    {8, bhavaEast},
    {9, bhavaSouth},
}};

/// How a kind writes its bodies. One cell array shows degrees, and one runs its bodies on along the line.
struct KindOfCell {
    std::string_view kind;
    CellArray cells;
    bool showsDegrees;
    bool breaksLines;
};

constexpr std::array<KindOfCell, 4> kindsOfCell{{
    {"1", rasiSouth, true, true},
    {"2", navamsaSouth, false, true},
    {"3", rasiEast, false, false},
    {"5", navamsaEast, false, true},
}};

struct StyleOfWindow {
    ChartStyle style;
    std::int16_t selector;
    std::string_view kind; ///< empty for North, whose cells are filled by house
};

struct WindowOfChart {
    ChartForm HoroscopeForms::*window;
    std::array<StyleOfWindow, 3> styles;
};

constexpr WindowOfChart rasiWindow{
    &HoroscopeForms::frm_rasi,
    {{{ChartStyle::South, 1, "1"}, {ChartStyle::East, 5, "3"}, {ChartStyle::North, 3, ""}}}};
constexpr WindowOfChart navamsaWindow{
    &HoroscopeForms::frm_Navamsa,
    {{{ChartStyle::South, 2, "2"}, {ChartStyle::East, 6, "5"}, {ChartStyle::North, 4, ""}}}};

/// The cell of a sign or house, 1 to 12.
std::string &CellOf(Cells &cells, int number) {
    if (number < 1 || number > 12) {
        throw OverflowError("Overflow: a chart has no cell " + std::to_string(number));
    }
    return cells.at(static_cast<std::size_t>(number - 1));
}

/// The number after going once round the twelve.
int WithinTwelve(int number) {
    return number > 12 ? number - 12 : number;
}

void FillBySigns(const HoroscopeState &state, HoroscopeForms &forms, std::string_view kind) {
    for (const BodyFields &fields : bodyFields) {
        ChartCellFill(forms, kind, ShortNameOf(state, fields.body), state.positions.*fields.rasi,
                      state.positions.*fields.longitude);
    }
}

void FillByHouses(const HoroscopeState &state, ChartForm &form) {
    for (int house = 1; house <= 12; ++house) {
        CellOf(form.Lab_NHouseNo, house) =
            std::to_string(WithinTwelve(house - 1 + state.positions.LagnaRasi));
    }
    for (const BodyFields &fields : bodyFields) {
        // House 1 opens with the Lagna, which alone has its long text.
        const bool isLagna = fields.body == Body::Lagna;
        const int house =
            isLagna ? 1 : HouseFromLagna(state.positions.LagnaRasi, state.positions.*fields.rasi);
        CellOf(form.North, house)
            .append(isLagna ? LongNameOf(state, fields.body) : ShortNameOf(state, fields.body))
            .append(gap);
    }
}

void FillChart(const HoroscopeState &state, HoroscopeForms &forms, const WindowOfChart &chart) {
    const auto style = ChartStyleOf(state.preferences.ChartStyle);
    for (const StyleOfWindow &entry : chart.styles) {
        if (entry.style != style) {
            continue;
        }
        ChartForm &form = forms.*chart.window;
        ChartCellClear(forms, entry.selector);
        form.VisibleFrame = entry.style;
        if (entry.style == ChartStyle::North) {
            FillByHouses(state, form);
        } else {
            FillBySigns(state, forms, entry.kind);
        }
    }
}

} // namespace

std::optional<ChartStyle> ChartStyleOf(std::string_view word) {
    if (word == "South") {
        return ChartStyle::South;
    }
    if (word == "East") {
        return ChartStyle::East;
    }
    if (word == "North") {
        return ChartStyle::North;
    }
    return std::nullopt;
}

void ChartCellClear(HoroscopeForms &forms, std::int16_t selector) {
    for (const Selection &selection : selections) {
        if (selection.selector == selector) {
            selection.cells.In(forms).fill("");
        }
    }
}

void ChartCellFill(HoroscopeForms &forms, std::string_view kind, std::string_view text, std::int16_t signNo,
                   double position) {
    for (const KindOfCell &entry : kindsOfCell) {
        if (entry.kind != kind) {
            continue;
        }
        std::string &cell = CellOf(entry.cells.In(forms), signNo);
        if (!cell.empty() && !entry.breaksLines) {
            cell.append(gap).append(text);
            continue;
        }
        cell.append(cell.empty() ? "" : "\r\n").append(text).append(gap);
        if (entry.showsDegrees) {
            cell.append(DegreeMinuteText(FoldToSign(position)));
        }
    }
}

std::int16_t HouseFromLagna(std::int16_t lagnaSign, std::int16_t bodySign) {
    return static_cast<std::int16_t>(WithinTwelve(13 - lagnaSign + bodySign));
}

void FillRasiChart(const HoroscopeState &state, HoroscopeForms &forms) {
    FillChart(state, forms, rasiWindow);
}

void FillNavamsaChart(const HoroscopeState &state, HoroscopeForms &forms) {
    FillChart(state, forms, navamsaWindow);
}

} // namespace kelvaro
