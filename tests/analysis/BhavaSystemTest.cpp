#include "analysis/BhavaSystem.h"

#include "horoscope/NamesForLanguage.h"
#include "horoscope/record/Bodies.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <string>

namespace kelvaro {
namespace {

using Houses = std::array<double, 12>;

HoroscopeState StateWith(double lagna, double midHeaven, const char *system) {
    HoroscopeState state;
    LoadNamesForLanguage(state);
    state.positions.LagnaLon = lagna;
    state.positions.MidHeaven = midHeaven;
    state.preferences.BhavaSystem = system;
    return state;
}

struct HouseCase {
    double lagna, midHeaven;
    const char *system;
    Houses start, middle; ///< a house ends where the next one starts
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
        HoroscopeState state = StateWith(expected.lagna, expected.midHeaven, expected.system);
        FindBhavas(state);
        Houses ends = expected.start;
        std::rotate(ends.begin(), ends.begin() + 1, ends.end());
        EXPECT_EQ(state.houses.BhavaStart, expected.start) << expected.system << " from " << expected.lagna;
        EXPECT_EQ(state.houses.BhavaMid, expected.middle) << expected.system << " from " << expected.lagna;
        EXPECT_EQ(state.houses.BhavaSandhi, ends) << expected.system << " from " << expected.lagna;
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
    HoroscopeState state = StateWith(100, 10, "Equal");
    constexpr std::array<double, 9> longitudes{340, 10, 345, 328.5, 345.5, 200, 360, 0, 10};
    for (std::size_t i = 0; i < 9; ++i) {
        state.positions.*bodyFields.at(i + 1).longitude = longitudes.at(i);
    }
    for (const RangeCase &expected : rangeCases) {
        EXPECT_EQ(PlanetsInBhava(state, expected.start, expected.end), expected.bodies)
            << expected.start << " to " << expected.end;
    }
}

TEST(BhavaSystem, HouseOneOpensWithTheLagna) {
    HoroscopeState state = StateWith(100, 10, "Equal");
    state.positions.SunLon = 115;
    FindBhavas(state);
    EXPECT_EQ(state.houses.BhavaPlanets.at(0), "Asc Sun");
    EXPECT_EQ(state.houses.BhavaPlanets.at(1), "Sun");
    state.positions.SunLon = 116;
    FindBhavas(state);
    EXPECT_EQ(state.houses.BhavaPlanets.at(0), "Asc ");
    EXPECT_EQ(state.houses.BhavaRasi, (std::array<std::int16_t, 12>{4, 5, 6, 7, 8, 9, 10, 11, 12, 1, 2, 3}));
}

double Forward(double from, double to) {
    return std::fmod(to - from + 360, 360);
}

// Houses follow each other round the circle and opposite ones face each other. Every body stands in one, save
// in a house across 0 degrees that starts too early to be told as one.
TEST(BhavaSystem, EqualHousesCoverTheZodiac) {
    std::mt19937 generator(20);
    std::uniform_real_distribution<double> anywhere(0, 360);
    std::uniform_real_distribution<double> quarter(30, 150);
    for (int run = 0; run < 1000; ++run) {
        const double lagna = anywhere(generator);
        HoroscopeState state = StateWith(lagna, Forward(quarter(generator), lagna), "Equal");
        state.positions.SunLon = anywhere(generator);
        FindBhavas(state);

        double circle = 0;
        bool isLost = false;
        for (std::size_t k = 0; k < 12; ++k) {
            const double start = state.houses.BhavaStart.at(k);
            const double width = Forward(start, state.houses.BhavaSandhi.at(k));
            circle += width;
            EXPECT_EQ(state.houses.BhavaSandhi.at(k), state.houses.BhavaStart.at((k + 1) % 12));
            EXPECT_LT(Forward(start, state.houses.BhavaMid.at(k)), width);
            EXPECT_NEAR(Forward(state.houses.BhavaMid.at(k), state.houses.BhavaMid.at((k + 6) % 12)), 180,
                        1e-9);
            isLost |= start < 329 && start + width > 360 && Forward(start, state.positions.SunLon) < width;
        }
        EXPECT_NEAR(circle, 360, 1e-9);
        EXPECT_NEAR(std::remainder(state.houses.BhavaMid.at(0) - lagna, 360), 0, 1e-9);
        EXPECT_NEAR(std::remainder(state.houses.BhavaMid.at(9) - state.positions.MidHeaven, 360), 0, 1e-9);
        const bool isListed = std::ranges::any_of(state.houses.BhavaPlanets, [](const std::string &names) {
            return names.find("Sun") != std::string::npos;
        });
        EXPECT_NE(isListed, isLost) << state.positions.SunLon << " with the Lagna at " << lagna;
    }
}

} // namespace
} // namespace kelvaro
