#include "report/ChartPages.h"

#include "report/TableLine.h"
#include "report/TextCharts.h"
#include "runtime/Numbers.h"
#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/Recordset.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace kelvaro {

namespace {

using CellReducer = std::string (*)(std::string_view label);

struct StyleOfReport {
    std::string_view word; ///< the preference in capitals
    ChartStyle style;
    std::array<std::string, 12> ChartForm::*cells;
    CellReducer reduce; ///< for the Rasi and the Navamsa chart
};

constexpr std::array<StyleOfReport, 3> styles{{
    {"SOUTH", ChartStyle::South, &ChartForm::South, ReduceCellLines},
    {"NORTH", ChartStyle::North, &ChartForm::North, ReduceCellPairs},
    {"EAST", ChartStyle::East, &ChartForm::East, ReduceCellLines},
}};

constexpr std::size_t bhavaRule = 70;
/// House, longitude, rasi and its lord, star, pada, star lord, sub lord. The digit of the pada stands at the
/// end of its heading, beside the longest star.
constexpr std::array<TableColumn, 8> bhavaColumns{
    {{0, 2}, {3, 9}, {13, 10}, {24, 7}, {32, 20}, {53, 1}, {55, 7}, {63, 7}}};
constexpr std::string_view bhavaHeading1 =
    "House Mid    Rasi       Rasi    Star              Pada Star    Sub";
constexpr std::string_view bhavaHeading2 =
    "   Longitude            Lord                           Lord    Lord";

/// The style of a drawing of the form; null where there is none to draw.
const StyleOfReport *StyleFor(const HoroscopeState &state, const ChartForm &form) {
    const auto *const found = std::ranges::find_if(styles, [&](const StyleOfReport &style) {
        return SameIgnoringCase(style.word, state.preferences.ChartStyle);
    });
    return found != styles.end() && form.VisibleFrame == found->style ? found : nullptr;
}

void OpenCells(const std::array<std::string, 12> &labels, CellReducer reduce, store::Connection &connection,
               store::Recordset &cells) {
    std::string statement("select ");
    for (std::size_t i = 0; i < labels.size(); ++i) {
        statement.append(i == 0 ? "" : ",").append(store::Quoted(reduce(labels.at(i))));
    }
    cells.Open(statement.append(" from tempdasasandhi"), connection);
}

void DrawCells(const store::Recordset &cells, std::string_view title, const HoroscopeState &state,
               const ChartForm &form, ChartStyle style, std::string &report) {
    switch (style) {
    case ChartStyle::South:
        SouthTextChart(cells, title, state.names.RasiNames, report);
        break;
    case ChartStyle::North:
        NorthTextChart(cells, title, ToInt32(NumberFromText(form.Lab_NHouseNo.front())), report);
        break;
    case ChartStyle::East:
        EastTextChart(cells, title, state.names.RasiNames, report);
        break;
    }
}

/// Without a reducer of its own, the chart takes that of the style.
void AddChart(std::string_view title, const HoroscopeState &state, const ChartForm &form,
              CellReducer ownReducer, store::Connection &connection, ReportPages &pages) {
    const StyleOfReport *style = StyleFor(state, form);
    if (style == nullptr) {
        return;
    }
    store::Recordset cells;
    OpenCells(form.*style->cells, ownReducer != nullptr ? ownReducer : style->reduce, connection, cells);
    DrawCells(cells, title, state, form, style->style, pages.Drawing());
}

void AddBhavaTable(const HoroscopeState &state, const TextGrid &grid, ReportPages &pages) {
    pages.AddLine(state.preferences.BhavaSystem == "Equal"
                      ? "Bhava Positions  (Equal Division of Houses From M.C)"
                      : "Bhava Positions  (Placidius Semi-Arc System)");
    pages.AddRule('-', bhavaRule);
    pages.AddLine(bhavaHeading1);
    pages.AddLine(bhavaHeading2);
    pages.AddRule('-', bhavaRule);
    for (const auto &row : grid.rows) {
        pages.AddLine(TableLine(bhavaColumns, row));
    }
}

} // namespace

void AddChartsPage(const HoroscopeState &state, const HoroscopeForms &forms, store::Connection &connection,
                   ReportPages &pages) {
    pages.OpenPage();
    AddChart("Rasi", state, forms.frm_rasi, nullptr, connection, pages);
    pages.AddBlankLines(2);
    AddChart("Navamsa", state, forms.frm_Navamsa, nullptr, connection, pages);
}

void AddBhavaPage(const HoroscopeState &state, const HoroscopeForms &forms, store::Connection &connection,
                  ReportPages &pages) {
    pages.OpenPage();
    // The cells of all its styles part the bodies by one blank.
    AddChart("Bhava", state, forms.frm_BhavaChart, ReduceCellBlanks, connection, pages);
    pages.AddBlankLines(2);
    AddBhavaTable(state, forms.frm_CBhava.bhava_features, pages);
}

} // namespace kelvaro
