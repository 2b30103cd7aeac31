#include "panchanga/clsStar.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace kelvaro {
namespace {

clsStar Classified(double position) {
    clsStar star;
    star.PlanetPosition = position;
    star.findstar();
    return star;
}

// Middles of the 108 padas: numbers, quarters and Navamsa signs follow from counting.
TEST(ClsStar, CountsThroughThePadas) {
    clsStar star;
    for (int pada = 0; pada < 108; ++pada) {
        const int place = pada / 4;
        star.PlanetPosition = (pada + 0.5) * 10 / 3;
        star.findstar();
        EXPECT_EQ(star.StarNo, place + (pada < 83 ? 1 : 2)) << pada;
        EXPECT_EQ(star.StarQuarter, pada % 4 + 1) << pada;
        EXPECT_EQ(star.HouseNo, place == 19 || place == 20 ? 4 : pada % 12 + 1) << pada;
    }
}

TEST(ClsStar, AnEndBelongsToItsPada) {
    constexpr std::array<double, 14> ends{3.33333333333333, 13.3333333333333, 23.3333333333333,
                                          26.6666666666667, 56.6666666666666, 70,
                                          83.3333333333333, 116.666666666667, 140,
                                          163.333333333333, 273.333333333333, 280,
                                          283.333333333334, 286.666666666667};
    for (const double end : ends) {
        const int quarter = static_cast<int>(std::lround(end * 0.3)) % 4;
        EXPECT_EQ(Classified(end).StarQuarter % 4, quarter) << end;
        EXPECT_EQ(Classified(std::nextafter(end, 400)).StarQuarter, quarter + 1) << end;
    }
    EXPECT_EQ(Classified(0).StarName, "Ashwini");
    EXPECT_EQ(Classified(13.3333333333333).StarName, "Ashwini");
    EXPECT_EQ(Classified(std::nextafter(13.3333333333333, 400)).StarName, "Bharani");
    EXPECT_EQ(Classified(360).StarName, "Revati");
}

TEST(ClsStar, AbijitStandsAcrossTwoStars) {
    struct Case {
        double position;
        const char *name;
        int star, quarter;
    };
    constexpr double start = 276.666666666667;
    const std::array<Case, 5> cases{{
        {std::nextafter(start, 0), "Uttarashada", 21, 3},
        {start, "Uttarashada - Abijit", 22, 3},
        {278, "Uttarashada - Abijit", 22, 4},
        {281, "Shravana - Abijit", 23, 1},
        {284, "Shravana", 23, 2},
    }};
    for (const Case &expected : cases) {
        const clsStar star = Classified(expected.position);
        EXPECT_EQ(star.StarName, expected.name);
        EXPECT_EQ(star.StarNo, expected.star) << expected.position;
        EXPECT_EQ(star.StarQuarter, expected.quarter) << expected.position;
    }
}

TEST(ClsStar, DistanceToTheEndOfThePadaWithItsIrregularEnds) {
    struct Case {
        double position, distance;
    };
    constexpr std::array<Case, 13> cases{{
        {1, 2.33333333333333},
        {22, 1.6666666666667},
        {54, 2.66525},
        {68, 22},
        {82, 1.33125},
        {115, -1.666666666667},
        {119, 1},
        {138, 1.9965},
        {162, 1.32925},
        {278, 2},
        {281, -0.666666666667},
        {285, 1.6595},
        {288, 2},
    }};
    for (const Case &expected : cases) {
        EXPECT_NEAR(Classified(expected.position).StarPadaDistance, expected.distance, 1e-12)
            << expected.position;
    }
}

TEST(ClsStar, KeepsWhatACallDoesNotAssign) {
    clsStar star = Classified(10);
    star.PlanetPosition = 260;
    star.findstar();
    EXPECT_EQ(star.HouseNo, 3);
    EXPECT_EQ(Classified(260).HouseNo, 0);

    for (const double outside : {-0.1, 360.5}) {
        star.PlanetPosition = outside;
        star.StarName = "";
        star.findstar();
        EXPECT_EQ(star.StarName, "Poorvashada") << outside;
        EXPECT_EQ(star.StarNo, 20) << outside;
    }
}

} // namespace
} // namespace kelvaro
