#include "analysis/BhavaSystem.h"

#include "analysis/BhavaForms.h"
#include "horoscope/NamesForLanguage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace kelvaro {
namespace {

using Degrees = std::array<double, 12>;
using Row = std::vector<std::string>;

const Names names = *NamesIn(Language::English); // NOLINT(cert-err58-cpp)

Positions PositionsOf(double lagna, double midHeaven, double sun = 0) {
    Positions positions;
    positions.LagnaLon = lagna;
    positions.MidHeaven = midHeaven;
    positions.SunLon = sun;
    return positions;
}

struct HouseCase {
    double lagna, midHeaven;
    const char *system;
    Degrees start, middle; ///< a house ends where the next one starts
};

// Divided by hand; all points are exact in binary.
const std::array<HouseCase, 5> houseCases{{
    // Quarters of 90 degrees: every house 30 wide.
    {100,
     10,
     "Equal",
     {85, 115, 145, 175, 205, 235, 265, 295, 325, 355, 25, 55},
     {100, 130, 160, 190, 220, 250, 280, 310, 340, 10, 40, 70}},
    // The middle of house 9 goes across 0.
    {100,
     10,
     "Not Equal",
     {100, 130, 160, 190, 220, 250, 280, 310, 340, 10, 40, 70},
     {115, 145, 175, 205, 235, 265, 295, 325, 355, 25, 55, 85}},
    // Quarters of 60 and 120 degrees, with steps of 10 and 20.
    {100,
     40,
     "Equal House",
     {90, 120, 160, 200, 230, 250, 270, 300, 340, 20, 50, 70},
     {100, 140, 180, 220, 240, 260, 280, 320, 0, 40, 60, 80}},
    // House 8 across 0: half of 340 and of the 350 that are left from 10, not of 370.
    {130,
     40,
     "Not Equal",
     {130, 160, 190, 220, 250, 280, 310, 340, 10, 40, 70, 100},
     {145, 175, 205, 235, 265, 295, 325, 345, 25, 55, 85, 115}},
    // House 1 across 0 without allowance: 185. House 12 starts above it and takes half of 320 and 545.
    {350,
     260,
     "Not Equal",
     {350, 20, 50, 80, 110, 140, 170, 200, 230, 260, 290, 320},
     {185, 35, 65, 95, 125, 155, 185, 215, 245, 275, 305, 72.5}},
}};

TEST(BhavaSystem, DividesTheHouses) {
    for (const HouseCase &expected : houseCases) {
        const Houses houses =
            HousesOf(PositionsOf(expected.lagna, expected.midHeaven), HouseSystemOf(expected.system), names);
        Degrees ends = expected.start;
        std::rotate(ends.begin(), ends.begin() + 1, ends.end());
        EXPECT_EQ(houses.BhavaStart, expected.start) << expected.system << " from " << expected.lagna;
        EXPECT_EQ(houses.BhavaMid, expected.middle) << expected.system << " from " << expected.lagna;
        EXPECT_EQ(houses.BhavaSandhi, ends) << expected.system << " from " << expected.lagna;
    }
}

struct RangeCase {
    double start, end;
    const char *bodies;
};

// Sun 340, Moon 10, Mars 345, Mercury 328.5, Jupiter 345.5, Venus 200, Saturn 360, Rahu 0, Ketu 10.
const std::array<RangeCase, 8> rangeCases{{
    {329, 10, "Sun Mar Jup Sat Moo Rah Ket"},
    {std::nextafter(329.0, 0), 10, ""},
    // Both limits met without 0 degrees in between: nearly the whole zodiac, and twice what lies in both
    // ranges.
    {330, 345, "Sun Mar Jup Sat Sun Moo Mar Mer Ven Rah Ket"},
    {330, std::nextafter(345.0, 400), "Sun Mar"},
    {328, 345, "Sun Mar Mer"},
    {10, 200, "Moo Ven Ket"},
    {200, 300, "Ven"},
    {201, 300, ""},
}};

TEST(BhavaSystem, ListsTheBodiesOfAHouse) {
    Positions positions;
    constexpr std::array<double, 9> longitudes{340, 10, 345, 328.5, 345.5, 200, 360, 0, 10};
    for (std::size_t i = 0; i < 9; ++i) {
        positions.*bodyFields.at(i + 1).longitude = longitudes.at(i);
    }
    for (const RangeCase &expected : rangeCases) {
        EXPECT_EQ(PlanetsInBhava(positions, names, expected.start, expected.end), expected.bodies)
            << expected.start << " to " << expected.end;
    }
}

TEST(BhavaSystem, HouseOneOpensWithTheLagna) {
    const Houses onTheLimit = HousesOf(PositionsOf(100, 10, 115), HouseSystem::Equal, names);
    EXPECT_EQ(onTheLimit.BhavaPlanets.at(0), "Asc Sun");
    EXPECT_EQ(onTheLimit.bodies.at(0), (std::vector<Body>{Body::Lagna, Body::Sun}));
    EXPECT_EQ(onTheLimit.BhavaPlanets.at(1), "Sun");
    const Houses behind = HousesOf(PositionsOf(100, 10, 116), HouseSystem::Equal, names);
    EXPECT_EQ(behind.BhavaPlanets.at(0), "Asc ");
    EXPECT_EQ(behind.BhavaRasi, (std::array<std::int16_t, 12>{4, 5, 6, 7, 8, 9, 10, 11, 12, 1, 2, 3}));
}

TEST(BhavaSystem, TablesShowLimitsAndMiddles) {
    clsStar star;
    const Houses houses = HousesOf(PositionsOf(119.25, 29.25, 134.25), HouseSystem::Equal, names);
    const auto [limits, middles] = BhavaTables(houses, names, star);
    EXPECT_EQ(limits.header, "House  |  Start Bhava | Mid Bhava    | Sandhi          | Planets               "
                             "                                        ");
    EXPECT_EQ(limits.rows.at(0), (Row{"1", "104.15.0", "119.15.0", "134.15.0", "Asc Sun"}));

    // 29.25 degrees in Aries: star and sub lord by hand.
    EXPECT_EQ(middles.header,
              "House         |Longitude |   Rasi       | Rasi Lord |  Star             | Pada "
              "|Star Lord       |Sub  Lord    ");
    EXPECT_EQ(middles.rows.at(9), (Row{"10", "29.15.0", "Aries", "Mars", "Kritika", "1", "Sun", "Rahu"}));
}

} // namespace
} // namespace kelvaro
