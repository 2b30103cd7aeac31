#include "analysis/PlanetTable.h"

#include "horoscope/NamesForLanguage.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelvaro {
namespace {

using Row = std::vector<std::string>;

TEST(RetroMark, ComparesOneDayOn) {
    const std::string mark = " (R)";
    EXPECT_EQ(RetroMark(100, 100.5, 1), "");
    EXPECT_EQ(RetroMark(100, 99.5, 1), mark);
    EXPECT_EQ(RetroMark(100, 100, 1), mark) << "a planet at rest";
    EXPECT_EQ(RetroMark(359.5, 0.5, 1), mark) << "across 0 degrees";
    EXPECT_EQ(RetroMark(0.5, 359.5, 1), "") << "back across 0 degrees";
    EXPECT_EQ(RetroMark(100, 99.95, 2), "");
    EXPECT_EQ(RetroMark(100, 100, 2), "") << "a node at rest";
    EXPECT_EQ(RetroMark(100, 100.05, 2), mark);
    EXPECT_EQ(RetroMark(100, 99, 0), "");
}

/// The birth of the record, 14 July 1965, with the longitudes of the facade for planets and nodes.
HoroscopeState StateAtBirth(ClsFindPlanetPosition &position, const char *language) {
    HoroscopeState state;
    state.preferences.Language = language;
    LoadNamesForLanguage(state);
    state.positions.BirthMomentDate = MomentOf({1965, 7, 14}, {14, 15, 0});
    position.FindFixValues(state.positions.BirthMomentDate, state.site.LatNS, state.site.LatDeg,
                           state.site.LatMin, state.site.LonEW, state.site.LonDeg, state.site.LonMin,
                           state.site.TimeDiff, state.site.TimeDiffEW, 0, "Lahiri", 0, 0);
    state.positions.MarsLon = position.FnFindMarsPosition();
    state.positions.MercuryLon = position.FnFindMercuryPosition();
    state.positions.JupiterLon = position.FnFindJupiterPosition();
    state.positions.VenusLon = position.FnFindVenusPosition();
    state.positions.SaturnLon = position.FnFindSaturnPosition();
    state.positions.RahuLon = position.FnFindRahuPosition();
    state.positions.KetuLon = position.FnFindKethuPosition();
    // These three never carry a mark, so they can stand where the classes are worth looking at.
    state.positions.LagnaLon = 276.7;
    state.positions.SunLon = 77.3;
    state.positions.MoonLon = 0;
    state.ghati.IshtaGhati = 20.5;
    return state;
}

// Worked by hand. 276.7 lies 6 degrees 42 minutes in Capricorn, past 276 2/3 where Abijit begins. 77.3 lies
// 17 degrees 18 minutes in Gemini, in the first Sun band, the last pada of Ardra and the sixth navamsa; the
// number is 6 * 1 * 6 + 1 + 20 + 10 = 67. For the Moon it is 1 * 2 * 1 + 1 + 20 + 10 = 33.
TEST(PlanetTable, ClassifiesTheBodies) {
    ClsFindPlanetPosition position;
    clsStar star;
    PlanetPositionsForm form;
    form.mshNirayana.rows.assign(20, {"stale"});
    form.mshNirayana.boldCells.push_back({0, 0});
    FillPlanetPositions(StateAtBirth(position, "Sanskrit"), form, position, star);

    const TextGrid &grid = form.mshNirayana;
    EXPECT_EQ(grid.header, "Planet|   Longitude  |   Rasi    |Rasi Lord|Star            |Pada|Star Lord|"
                           "Sub  Lord|Karaka*|Avasthas** ");
    ASSERT_EQ(grid.rows.size(), 10U);
    EXPECT_EQ(grid.rows.at(0), (Row{"Lag", "6.42.0", "Makara", "Sani", "Uttarashada - Abijit", "4", "Surya",
                                    "Budha", "--", "----"}));
    Row sun = grid.rows.at(1);
    sun.at(8) = "";
    EXPECT_EQ(sun, (Row{"Rav", "17.18.0", "Mithuna", "Budha", "Ardra", "4", "Rahu", "Surya", "", "Sabha"}));
    Row moon = grid.rows.at(2);
    moon.at(8) = "";
    EXPECT_EQ(moon, (Row{"Cha", "0.0.0", "Mesha", "Kuja", "Ashwini", "1", "Ketu", "Ketu", "", "Bhojana"}));
    EXPECT_EQ(grid.rows.at(9).at(0), "Ket");
    EXPECT_EQ(grid.rows.at(8).at(8) + grid.rows.at(9).at(8), "----");

    ASSERT_EQ(grid.boldCells.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(grid.boldCells.at(i).column, 8U);
        EXPECT_EQ(grid.rows.at(grid.boldCells.at(i).row).at(8), "--");
    }
}

// Eight weeks before its opposition of September 1965 Saturn moved backward, the four others forward and the
// nodes as they always do.
TEST(PlanetTable, MarksSaturnAlone) {
    ClsFindPlanetPosition position;
    clsStar star;
    PlanetPositionsForm form;
    FillPlanetPositions(StateAtBirth(position, "English"), form, position, star);
    for (const Row &row : form.mshNirayana.rows) {
        EXPECT_EQ(row.at(1).ends_with(" (R)"), row.at(0) == "Sat") << row.at(0) << " " << row.at(1);
        EXPECT_FALSE(row.at(8).empty() || row.at(9).empty()) << row.at(0);
    }
}

} // namespace
} // namespace kelvaro
