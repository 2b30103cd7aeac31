#include "report/TablePages.h"

#include "report/TextLayout.h"
#include "runtime/MomentText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

namespace {

using Row = std::vector<std::string>;

constexpr std::size_t planetsRule = 71;
/// Planet, longitude, rasi, star, pada, star lord, sub lord, karaka, avastha: as narrow as the longest of
/// their texts, but for the rasi, which is cut to its short name. The digit of the pada stands at the end of
/// its heading.
constexpr std::array<TableColumn, 9> planetColumns{
    {{0, 3}, {4, 12}, {17, 3}, {22, 11}, {34, 1}, {36, 7}, {44, 7}, {52, 7}, {60, 11}}};
constexpr std::string_view planetHeading1 =
    "Planet           Rasi Star     Pada Star    Sub     Jaimini Sayanadi";
constexpr std::string_view planetHeading2 =
    "    Longitude                       Lord    Lord    Karaka  Avastha";
constexpr std::size_t rasiLordCell = 3; // of the grid; the report has no room for it
constexpr std::size_t starColumn = 3;

constexpr std::size_t ashtakavargaRule = 67;
/// Rasi, the seven planets, the Lagna and Rahu, which only the second total counts, each with its asterisk,
/// and the totals.
constexpr std::array<TableColumn, 14> ashtakavargaColumns{{{0, 10},
                                                           {12, 4, Align::Right},
                                                           {16, 4, Align::Right},
                                                           {20, 4, Align::Right},
                                                           {24, 4, Align::Right},
                                                           {28, 4, Align::Right},
                                                           {32, 4, Align::Right},
                                                           {36, 4, Align::Right},
                                                           {40, 4, Align::Right},
                                                           {45, 1},
                                                           {46, 4, Align::Right},
                                                           {51, 1},
                                                           {52, 7, Align::Right},
                                                           {59, 8, Align::Right}}};
constexpr std::array<std::size_t, 2> asteriskColumns{9, 11};
constexpr std::array<Body, 9> ashtakavargaBodies{Body::Sun,     Body::Moon,    Body::Mars,
                                                 Body::Mercury, Body::Jupiter, Body::Venus,
                                                 Body::Saturn,  Body::Lagna,   Body::Rahu};

constexpr std::size_t vargasRule = 67;
constexpr std::array<TableColumn, 11> vargaColumns{
    {{0, 17}, {19, 3}, {24, 3}, {29, 3}, {34, 3}, {39, 3}, {44, 3}, {49, 3}, {54, 3}, {59, 3}, {64, 3}}};

constexpr std::size_t dasaRule = 67;
constexpr std::array<TableColumn, 4> dasaColumns{{{0, 10}, {18, 11}, {38, 11}, {58, 9, Align::Right}}};

/// The stars that share Abijit carry its name behind their own, for which the table has no room.
void ShortenStar(std::string &star) {
    if (CharacterCount(star) > planetColumns[starColumn].width) {
        star.resize(std::min(star.find(" - "), star.size()));
    }
}

void AddPlanets(const TextGrid &grid, ReportPages &pages) {
    pages.AddLine("Planet Positions");
    pages.AddRule('-', planetsRule);
    pages.AddLine(planetHeading1);
    pages.AddLine(planetHeading2);
    pages.AddRule('-', planetsRule);
    for (Row row : grid.rows) {
        row.erase(row.begin() + rasiLordCell);
        ShortenStar(row.at(starColumn));
        pages.AddLine(TableLine(planetColumns, row));
    }
    pages.AddRule('-', planetsRule);
}

/// A line of the Ashtakavarga from the cells of its other columns.
std::string AshtakavargaLine(Row cells, const std::string &asterisk) {
    for (const std::size_t column : asteriskColumns) {
        cells.insert(cells.begin() + static_cast<std::ptrdiff_t>(column), asterisk);
    }
    return TableLine(ashtakavargaColumns, cells);
}

void AddAshtakavarga(const Names &names, const TextGrid &grid, ReportPages &pages) {
    pages.AddLine("Ashta Vargas");
    Row heading{"Rasi"};
    for (const Body body : ashtakavargaBodies) {
        heading.push_back(ShortNameOf(names, body));
    }
    heading.insert(heading.end(), {"  Total", "With *"});
    pages.AddLine(AshtakavargaLine(heading, "*"));
    if (grid.rows.empty()) {
        return;
    }
    for (const Row &row : std::span(grid.rows).first(grid.rows.size() - 1)) {
        pages.AddLine(AshtakavargaLine(row, ""));
    }
    pages.AddRule('-', ashtakavargaRule);
    Row total = grid.rows.back();
    total.front() = "Total  ";
    pages.AddLine(AshtakavargaLine(total, ""));
    pages.AddRule('-', ashtakavargaRule);
}

void AddVargas(const Names &names, const TextGrid &grid, ReportPages &pages) {
    pages.AddLine("Vargas");
    pages.AddRule('-', vargasRule);
    Row heading{"Chart Type"};
    for (std::size_t column = 1; column < vargaColumns.size(); ++column) {
        heading.push_back(ShortNameOf(names, bodyFields.at(column - 1).body));
    }
    pages.AddLine(TableLine(vargaColumns, heading));
    pages.AddRule('-', vargasRule);
    for (const Row &row : grid.rows) {
        pages.AddLine(TableLine(vargaColumns, row));
    }
}

void AddDasas(const std::string &balance, std::span<const DasaPeriod> dasas, ReportPages &pages) {
    pages.AddLine("Vimshottari Dasa");
    pages.AddLine("================");
    pages.AddLine("Dasa Balance at Birth : " + balance);
    pages.AddBlankLines(1);
    pages.AddLine(TableLine(dasaColumns, Row{"Dasa", "Start", "End", "Start Age"}));
    pages.AddRule('-', dasaRule);
    for (const DasaPeriod &dasa : dasas) {
        pages.AddLine(
            TableLine(dasaColumns, Row{dasa.lordName, MonthNameDateText(dasa.start),
                                       MonthNameDateText(dasa.end), std::to_string(dasa.ageAtStart)}));
    }
    pages.AddRule('-', dasaRule);
}

} // namespace

void AddPlanetsPage(const HoroscopeState &state, const HoroscopeForms &forms, ReportPages &pages) {
    pages.OpenPage();
    AddPlanets(forms.Frm_PP.mshNirayana, pages);
    pages.AddBlankLines(2);
    AddAshtakavarga(state.names, forms.Frm_AVargas.mshAshtaVarga, pages);
}

void AddVargasPage(const HoroscopeState &state, const HoroscopeForms &forms, ReportPages &pages) {
    pages.OpenPage();
    AddVargas(state.names, forms.Frm_Vargas.mshVargas, pages);
    pages.AddBlankLines(2);
    AddDasas(state.DasaBalanceText, forms.Frm_Dasa.dasas, pages);
}

} // namespace kelvaro
