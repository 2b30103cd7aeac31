#include "analysis/PlanetTable.h"

#include "analysis/Karakas.h"
#include "horoscope/NamesForLanguage.h"
#include "presentation/AngleText.h"

#include <gtest/gtest.h>

#include <array>
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

struct KarakaCase {
    const char *what;
    std::array<double, 7> longitudes; ///< Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn
    std::array<const char *, 7> karakas;
};

const std::array<KarakaCase, 3> karakaCases{{
    // 9.6.0, 9.30.0, 5.30.0, 25.0.0, 12.30.0, 10.15.0, 1.0.0.
    {"by characters and not by size",
     {5.5, 42.5, 99.5, 25, 129.1, 331, 310.25},
     {"Bhratri", "Puttra", "Amatya", "Matri", "Atma", "Dara", "Gnati"}},
    // Sun and Saturn 9.0.0 rank first and second, Moon, Mars and Jupiter 3.0.0 third to fifth.
    {"the last rank among equals",
     {9, 3, 33, 2, 333, 1, 279},
     {"Amatya", "Puttra", "Puttra", "Gnati", "Puttra", "Dara", "Amatya"}},
    // 20.0.0 and 20.0.1 differ; Mars and Venus, less than a second apart, share 8.0.0.
    {"texts decide equality",
     {20, 20 + 1 / 3600.0, 8, 7, 6, 8 + 1e-5, 5},
     {"Dara", "Gnati", "Amatya", "Bhratri", "Matri", "Amatya", "Puttra"}},
}};

TEST(Karakas, RankByText) {
    for (const KarakaCase &expected : karakaCases) {
        SCOPED_TRACE(expected.what);
        Positions positions;
        PlanetPositionsForm form;
        form.MSFlexGridSort.rows.assign(9, {"stale"});
        form.mshNirayana.rows.assign(10, std::vector<std::string>(10));
        for (std::size_t i = 0; i < 7; ++i) {
            positions.*bodyFields.at(i + 1).longitude = expected.longitudes.at(i);
            form.mshNirayana.rows.at(i + 1).at(1) = FormatDegrees(DegreesInRasi(expected.longitudes.at(i)));
        }
        // Rows that take no part, with the text of a planet.
        form.mshNirayana.rows.at(8).at(1) = form.mshNirayana.rows.at(1).at(1);
        form.mshNirayana.rows.at(0).at(1) = form.mshNirayana.rows.at(1).at(1);

        RankKarakas(positions, form);
        EXPECT_EQ(form.MSFlexGridSort.rows.size(), 7U);
        for (std::size_t i = 0; i < 7; ++i) {
            EXPECT_EQ(form.mshNirayana.rows.at(i + 1).at(8), expected.karakas.at(i)) << "planet " << i;
        }
        EXPECT_EQ(form.mshNirayana.rows.at(0).at(8), "");
        EXPECT_EQ(form.mshNirayana.rows.at(8).at(8), "");
    }
}

} // namespace
} // namespace kelvaro
