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

/// For 14 July 1965, with the longitudes of the facade for planets and nodes.
TextGrid TableAtBirth(Language language) {
    ClsFindPlanetPosition facade;
    const auto setTo = [&](Moment moment) {
        facade.FindFixValues(moment, "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 0, 0);
    };
    Positions positions;
    const Moment birth = MomentOf({1965, 7, 14}, {14, 15, 0});
    setTo(birth);
    const RetroLongitudes atBirth = RetroLongitudesOf(facade);
    for (std::size_t i = 3; i < atBirth.size(); ++i) {
        positions.*bodyFields.at(i).longitude = atBirth.at(i);
    }
    // These three never carry a mark, so they can stand where the classes are worth looking at.
    positions.LagnaLon = 276.7;
    positions.SunLon = 77.3;
    positions.MoonLon = 0;
    setTo(DateAdd(Interval::Day, 1, birth));
    clsStar star;
    return PlanetTable(positions, RetroLongitudesOf(facade), *NamesIn(language), 20.5, star).mshNirayana;
}

// Worked by hand. 276.7 lies 6 degrees 42 minutes in Capricorn, past 276 2/3 where Abijit begins. 77.3 lies
// 17 degrees 18 minutes in Gemini, in the first Sun band, the last pada of Ardra and the sixth navamsa; the
// number is 6 * 1 * 6 + 1 + 20 + 10 = 67. For the Moon it is 1 * 2 * 1 + 1 + 20 + 10 = 33.
TEST(PlanetTable, ClassifiesTheBodies) {
    const TextGrid grid = TableAtBirth(Language::Sanskrit);
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
    for (const Row &row : TableAtBirth(Language::English).rows) {
        EXPECT_EQ(row.at(1).ends_with(" (R)"), row.at(0) == "Sat") << row.at(0) << " " << row.at(1);
        EXPECT_FALSE(row.at(8).empty() || row.at(9).empty()) << row.at(0);
    }
}

} // namespace
} // namespace kelvaro
