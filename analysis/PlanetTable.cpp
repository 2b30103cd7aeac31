#include "analysis/PlanetTable.h"

#include "analysis/Karakas.h"
#include "analysis/LongitudeCells.h"
#include "analysis/SayanadiAvastha.h"
#include "panchanga/Sign.h"
#include "presentation/AngleText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace kelvaro {

namespace {

constexpr std::string_view heading = "Planet|   Longitude  |   Rasi    |Rasi Lord|Star            |"
                                     "Pada|Star Lord|Sub  Lord|Karaka*|Avasthas** ";

constexpr std::size_t columns = 10;
constexpr std::size_t nameColumn = 0;
constexpr std::size_t longitudeColumn = 1;
constexpr std::size_t rasiColumn = 2; // and the classes of the longitude after it
constexpr std::size_t karakaColumn = 8;
constexpr std::size_t avasthaColumn = 9;

constexpr int noMark = 0;
constexpr int planetMark = 1;
constexpr int nodeMark = 2;

/// What is known of the body of a row, in the order of `bodyFields`.
struct RowOfBody {
    std::string_view lordName; ///< empty for the Lagna, which has neither karaka nor avastha
    bool hasKaraka;
    int retroKind;
    double (ClsFindPlanetPosition::*longitude)(); ///< for rows with a retrograde kind
};

constexpr std::array<RowOfBody, 10> rowsOfBodies{{
    {"", false, noMark, nullptr},
    {"Sun", true, noMark, nullptr},
    {"Moon", true, noMark, nullptr},
    {"Mars", true, planetMark, &ClsFindPlanetPosition::FnFindMarsPosition},
    {"Mercury", true, planetMark, &ClsFindPlanetPosition::FnFindMercuryPosition},
    {"Jupiter", true, planetMark, &ClsFindPlanetPosition::FnFindJupiterPosition},
    {"Venus", true, planetMark, &ClsFindPlanetPosition::FnFindVenusPosition},
    {"Saturn", true, planetMark, &ClsFindPlanetPosition::FnFindSaturnPosition},
    {"Rahu", false, nodeMark, &ClsFindPlanetPosition::FnFindRahuPosition},
    {"Kethu", false, nodeMark, &ClsFindPlanetPosition::FnFindKethuPosition},
}};

double LongitudeIn(const Positions &positions, std::size_t row) {
    return positions.*bodyFields.at(row).longitude;
}

void FillClasses(const Positions &positions, const Names &names, TextGrid &grid, clsStar &star) {
    for (std::size_t i = 0; i < rowsOfBodies.size(); ++i) {
        std::vector<std::string> &row = grid.rows.at(i);
        row.at(nameColumn) = ShortNameOf(names, bodyFields.at(i).body);
        row.at(longitudeColumn) = FormatDegrees(DegreesInRasi(LongitudeIn(positions, i)));
        std::ranges::move(LongitudeCells(names, star, LongitudeIn(positions, i)), row.begin() + rasiColumn);
    }
}

void FillAvasthas(const Positions &positions, double ishtaGhati, TextGrid &grid, clsStar &star) {
    const std::int16_t lagnaRasi = RasiOfLongitude(positions.LagnaLon, rasiSize);
    for (std::size_t i = 0; i < rowsOfBodies.size(); ++i) {
        const std::string_view lordName = rowsOfBodies.at(i).lordName;
        grid.rows.at(i).at(avasthaColumn) =
            lordName.empty() ? "----"
                             : SayanadiAvastha(star, LongitudeIn(positions, i), lordName, positions.LagnaLon,
                                               positions.MoonLon, lagnaRasi, ishtaGhati);
    }
}

void DashKarakas(TextGrid &grid) {
    for (std::size_t i = 0; i < rowsOfBodies.size(); ++i) {
        if (!rowsOfBodies.at(i).hasKaraka) {
            grid.rows.at(i).at(karakaColumn) = "--";
            grid.boldCells.push_back({i, karakaColumn});
        }
    }
}

/// Only now: the ranking of the karakas compares the bare texts.
void MarkRetrogrades(const Positions &positions, const RetroLongitudes &nextDay, TextGrid &grid) {
    for (std::size_t i = 0; i < rowsOfBodies.size(); ++i) {
        grid.rows.at(i).at(longitudeColumn) +=
            RetroMark(LongitudeIn(positions, i), nextDay.at(i), rowsOfBodies.at(i).retroKind);
    }
}

} // namespace

std::string_view RetroMark(double today, double nextDay, int kind) {
    const bool movesOn = nextDay > today;
    const bool isMarked = (kind == planetMark && !movesOn) || (kind == nodeMark && movesOn);
    return isMarked ? " (R)" : "";
}

RetroLongitudes RetroLongitudesOf(ClsFindPlanetPosition &position) {
    RetroLongitudes longitudes{};
    for (std::size_t i = 0; i < rowsOfBodies.size(); ++i) {
        const RowOfBody &body = rowsOfBodies.at(i);
        longitudes.at(i) = body.retroKind == noMark ? 0 : (position.*body.longitude)();
    }
    return longitudes;
}

PlanetPositionsForm PlanetTable(const Positions &positions, const RetroLongitudes &nextDay,
                                const Names &names, double ishtaGhati, clsStar &star) {
    PlanetPositionsForm form;
    TextGrid &grid = form.mshNirayana;
    grid.header = heading;
    grid.rows.assign(rowsOfBodies.size(), std::vector<std::string>(columns));
    FillClasses(positions, names, grid, star);
    RankKarakas(positions, form);
    FillAvasthas(positions, ishtaGhati, grid, star);
    DashKarakas(grid);
    MarkRetrogrades(positions, nextDay, grid);
    return form;
}

} // namespace kelvaro
