#include "report/ChartPages.h"

#include "panchanga/Sign.h"
#include "report/TextCharts.h"
#include "report/TextLayout.h"
#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/Recordset.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

namespace {

constexpr std::size_t noteWidth = 66;

using CellReducer = std::string (*)(std::string_view label);

constexpr std::size_t bhavaRule = 70;
/// House, longitude, rasi and its lord, star, pada, star lord, sub lord. The digit of the pada stands at the
/// end of its heading, beside the longest star.
constexpr std::array<TableColumn, 8> bhavaColumns{
    {{0, 2}, {3, 9}, {13, 10}, {24, 7}, {32, 20}, {53, 1}, {55, 7}, {63, 7}}};
constexpr std::string_view bhavaHeading1 =
    "House Mid    Rasi       Rasi    Star              Pada Star    Sub";
constexpr std::string_view bhavaHeading2 =
    "   Longitude            Lord                           Lord    Lord";

void OpenCells(const std::array<std::string, 12> &labels, CellReducer reduce, store::Connection &connection,
               store::Recordset &cells) {
    std::string statement("select ");
    for (std::size_t i = 0; i < labels.size(); ++i) {
        statement.append(i == 0 ? "" : ",").append(store::Quoted(reduce(labels.at(i))));
    }
    cells.Open(statement.append(" from tempdasasandhi"), connection);
}

std::vector<std::string> DrawCells(const store::Recordset &cells, std::string_view title,
                                   const HoroscopeState &state, const ChartForm &form) {
    switch (form.VisibleFrame) {
    case ChartStyle::South:
        return SouthTextChart(cells, title, state.names.RasiNames);
    case ChartStyle::North:
        return NorthTextChart(cells, title, form.NorthRasiOfHouse.front());
    case ChartStyle::East:
        return EastTextChart(cells, title, state.names.RasiNames);
    case ChartStyle::Unknown:
        break;
    }
    return {};
}

/// "Moo Mar in Aries": the bodies of a cell that the drawing does not show, and their sign; empty where it
/// shows them all.
std::string LeftOutOf(const std::vector<CellBody> &bodies, std::string_view shown, const std::string &sign) {
    std::string leftOut;
    for (const CellBody &body : bodies) {
        const std::string_view name = ReducedName(body.name);
        if (shown.find(name) == std::string_view::npos) {
            leftOut.append(name).append(" ");
        }
    }
    return leftOut.empty() ? leftOut : leftOut.append("in ").append(sign);
}

/// In lines that break between the signs.
void AddNote(const std::vector<std::string> &leftOut, ReportPages &pages) {
    std::string line("No room for: ");
    for (std::size_t i = 0; i < leftOut.size(); ++i) {
        const std::string entry = leftOut.at(i) + (i + 1 < leftOut.size() ? "; " : "");
        if (i > 0 && line.size() + entry.size() > noteWidth) {
            pages.AddLine(Centred(line, pageWidth));
            line.clear();
        }
        line += entry;
    }
    pages.AddLine(Centred(line, pageWidth));
}

/// The cells of a drawing are too small for many bodies, and the label of the Rasi chart in the East style
/// comes down to its first.
void AddLeftOut(const store::Recordset &cells, const HoroscopeState &state, const ChartForm &form,
                ReportPages &pages) {
    const bool isByHouse = form.VisibleFrame == ChartStyle::North;
    const auto shown = CellsShown(cells, form.VisibleFrame);
    std::vector<std::string> notes;
    for (std::size_t cell = 0; cell < shown.size(); ++cell) {
        const Sign sign(isByHouse ? form.NorthRasiOfHouse.at(cell) : static_cast<int>(cell) + 1);
        const std::string number = isByHouse ? " (" + std::to_string(sign.Number()) + ")" : "";
        const std::string leftOut =
            LeftOutOf(form.bodies.at(cell), shown.at(cell), state.names.RasiNames.at(sign.Index()) + number);
        if (!leftOut.empty()) {
            notes.push_back(leftOut);
        }
    }
    if (!notes.empty()) {
        AddNote(notes, pages);
    }
}

void AddChart(std::string_view title, const HoroscopeState &state, const ChartForm &form, bool isBhava,
              store::Connection &connection, ReportPages &pages) {
    const StyleOfChart *style = PreferredStyleOf(state, form);
    if (style == nullptr) {
        return;
    }
    const CellReducer reduce = isBhava                             ? ReduceCellBlanks
                               : style->style == ChartStyle::North ? ReduceCellPairs
                                                                   : ReduceCellLines;
    store::Recordset cells;
    OpenCells(form.*style->cells, reduce, connection, cells);
    pages.AddDrawing(DrawCells(cells, title, state, form));
    AddLeftOut(cells, state, form, pages);
}

void AddBhavaTable(const HoroscopeState &state, const TextGrid &grid, ReportPages &pages) {
    pages.AddLine(BhavaTableTitle(state));
    pages.AddRule('-', bhavaRule);
    pages.AddLine(bhavaHeading1);
    pages.AddLine(bhavaHeading2);
    pages.AddRule('-', bhavaRule);
    for (const auto &row : grid.rows) {
        pages.AddLine(TableLine(bhavaColumns, row));
    }
}

} // namespace

const StyleOfChart *PreferredStyleOf(const HoroscopeState &state, const ChartForm &form) {
    const auto *const found = std::ranges::find_if(chartStyles, [&](const StyleOfChart &style) {
        return SameIgnoringCase(style.word, state.preferences.ChartStyle);
    });
    return found != chartStyles.end() && form.VisibleFrame == found->style ? found : nullptr;
}

std::string_view BhavaTableTitle(const HoroscopeState &state) {
    return HouseSystemOf(state.preferences.BhavaSystem) == HouseSystem::Equal
               ? "Bhava Positions  (Equal Division of Houses From M.C)"
               : "Bhava Positions  (Placidius Semi-Arc System)";
}

void AddChartsPage(const HoroscopeState &state, const HoroscopeForms &forms, store::Connection &connection,
                   ReportPages &pages) {
    pages.OpenPage();
    AddChart("Rasi", state, forms.frm_rasi, false, connection, pages);
    pages.AddBlankLines(2);
    AddChart("Navamsa", state, forms.frm_Navamsa, false, connection, pages);
}

void AddBhavaPage(const HoroscopeState &state, const HoroscopeForms &forms, store::Connection &connection,
                  ReportPages &pages) {
    pages.OpenPage();
    // The cells of all its styles part the bodies by one blank.
    AddChart("Bhava", state, forms.frm_BhavaChart, true, connection, pages);
    pages.AddBlankLines(2);
    AddBhavaTable(state, forms.frm_CBhava.bhava_features, pages);
}

} // namespace kelvaro
