#include "panchanga/clsRasi.h"
#include "panchanga/clsStar.h"
#include "panchanga/clsTithi.h"
#include "panchanga/clsYoga.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>

namespace kelvaro {
namespace {

TEST(ClsRasi, BoundsAndHalves) {
    struct Case {
        double position;
        int number, half;
        const char *name;
    };
    constexpr std::array<Case, 14> cases{{
        {0, 1, 1, "Mesha"},
        {29, 1, 1, "Mesha"},
        {30.005, 1, 1, "Mesha"},
        {30.01, 1, 1, "Mesha"},
        {30.02, 2, 1, "Vrishaba"},
        {45, 2, 1, "Vrishaba"},
        {45.5, 2, 2, "Vrishaba"},
        {60, 2, 2, "Vrishaba"},
        {60.01, 3, 1, "Mithuna"},
        {185, 7, 1, "Thula"},
        {240, 8, 2, "Vrishchika"},
        {330, 11, 2, "Khumba"},
        {330.1, 12, 1, "Meena"},
        {360, 12, 2, "Meena"},
    }};
    clsRasi rasi;
    rasi.nchkLanguage = "Sanskrit";
    for (const Case &expected : cases) {
        rasi.PlanetPosition = expected.position;
        rasi.findRasi();
        EXPECT_EQ(rasi.RasiName, expected.name) << expected.position;
        EXPECT_EQ(rasi.RasiNo, expected.number) << expected.position;
        EXPECT_EQ(rasi.RasiHalf, expected.half) << expected.position;
    }
}

TEST(ClsRasi, KeepsWhatACallDoesNotAssign) {
    clsRasi rasi;
    rasi.nchkLanguage = "English";
    rasi.PlanetPosition = 255;
    rasi.findRasi();
    rasi.PlanetPosition = 20;
    rasi.nchkLanguage = "english";
    rasi.findRasi();
    EXPECT_EQ(rasi.RasiName, "Sagitarius");

    // Outside the circle the half is found all the same.
    rasi.nchkLanguage = "English";
    for (const double outside : {-0.1, 375.5, std::numeric_limits<double>::infinity()}) {
        rasi.PlanetPosition = outside;
        rasi.findRasi();
        EXPECT_EQ(rasi.RasiName, "Sagitarius") << outside;
        EXPECT_EQ(rasi.RasiNo, 9) << outside;
        EXPECT_EQ(rasi.RasiHalf, outside < 0 ? 1 : 2) << outside;
    }
}

clsTithi Classified(double moon, double sun) {
    clsTithi tithi;
    tithi.moonA = moon;
    tithi.sunC = sun;
    tithi.FindTithi();
    return tithi;
}

// Seven karanas follow one another through the month; four stand once, around the new moon. They are known
// by their first three letters, as their ends are spelled in several ways.
TEST(ClsTithi, CountsThroughTheMonth) {
    constexpr std::array<const char *, 7> turning{"Bav", "Bal", "Kau", "Tai", "Gar", "Van", "Vis"};
    constexpr std::array<const char *, 4> fixed{"Sha", "Cha", "Nag", "Kin"};
    std::array<std::string, 15> bright;
    for (std::size_t half = 0; half < 60; ++half) {
        const clsTithi tithi = Classified(std::fmod(350 + 6 * static_cast<double>(half) + 3, 360), 350);
        const std::size_t place = half / 2;
        EXPECT_EQ(tithi.TithiNo, static_cast<int>(place) + 1);
        EXPECT_EQ(tithi.TithiPosition, place < 15 ? "Bright" : "Dark") << half;
        const char *karana =
            half == 0 || half > 56 ? fixed.at((half + 3) % 60 % 4) : turning.at((half - 1) % 7);
        EXPECT_EQ(tithi.Karnam.substr(0, 3), karana) << half;
        if (place < 15) {
            bright.at(place) = tithi.Tithi;
        } else if (place < 29) {
            EXPECT_EQ(tithi.Tithi, bright.at(place - 15)) << half;
        }
    }
    EXPECT_EQ(bright.at(0), "Pratipada");
    EXPECT_EQ(bright.at(7), "Ashtami");
    EXPECT_EQ(bright.at(14), "Purnima");
}

TEST(ClsTithi, BoundsBelongToTheRowBefore) {
    const struct {
        double moon, sun;
        int number;
        const char *name, *karana;
    } cases[] = {
        {100, 100, 1, "Pratipada", "Kintughna"},
        {106, 100, 1, "Pratipada", "Kintughna"},
        {std::nextafter(106, 360), 100, 1, "Pratipada", "Bava"},
        {112, 100, 1, "Pratipada", "Bava"},
        {std::nextafter(112, 360), 100, 2, "Dwitiya", "Balav"},
        {10, 350, 2, "Dwitiya", "Kaulav"},
        {180, 0, 15, "Purnima", "Bav"},
        {180.5, 0, 16, "Pratipada", "Balav"},
        {348, 0, 29, "Chaturdashi", "Shakuni"},
        {354, 0, 30, "Amavashya", "Chatushpada"},
        {354.5, 0, 30, "Amavashya", "Naga"},
        {360, 0, 30, "Amavashya", "Naga"},
        {0, 360, 1, "Pratipada", "Kintughna"},
    };
    for (const auto &expected : cases) {
        const clsTithi tithi = Classified(expected.moon, expected.sun);
        EXPECT_EQ(tithi.TithiNo, expected.number) << expected.moon;
        EXPECT_EQ(tithi.Tithi, expected.name) << expected.moon;
        EXPECT_EQ(tithi.Karnam, expected.karana) << expected.moon;
    }
}

TEST(ClsTithi, KeepsItsResultsOutsideTheCircle) {
    clsTithi tithi = Classified(200, 10);
    for (const double moon : {371.0, -400.0, std::numeric_limits<double>::quiet_NaN()}) {
        tithi.moonA = moon;
        tithi.FindTithi();
        EXPECT_EQ(tithi.Tithi + tithi.TithiPosition, "PratipadaDark") << moon;
        EXPECT_EQ(tithi.TithiNo, 16) << moon;
        EXPECT_EQ(TithiNumberOf(moon, 10), 0) << moon;
    }
    EXPECT_EQ(TithiNumberOf(200, 10), 16);
    EXPECT_EQ(TithiNameOf(200, 10), "Pratipada");
    EXPECT_EQ(TithiSideOf(200, 10), "Dark");
}

TEST(ClsYoga, CountsInSpansOfThreeDecimals) {
    clsYoga yoga;
    for (int number = 1; number <= 27; ++number) {
        yoga.moon_position = 200;
        yoga.sun_position = (number - 0.5) * 360 / 27 + 160;
        yoga.findyoga();
        EXPECT_EQ(yoga.YogaNo, number);
    }
}

TEST(ClsYoga, Bounds) {
    const struct {
        double moon, sun;
        int number;
        const char *name;
    } cases[] = {
        {0, 0, 1, "Vishkumbha"},       {13.333, 0, 1, "Vishkumbha"}, {13.3331, 0, 2, "Preeti"},
        {133.33, 0, 10, "Ganda"},      {133.3331, 0, 11, "Vriddhi"}, {226.661, 0, 17, "Vyatipaata"},
        {266.66, 0, 20, "Shiva"},      {266.661, 0, 21, "Siddha"},   {346.658, 0, 26, "Indra"},
        {346.66, 0, 27, "Vaidhriti"},  {359.99, 0, 27, "Vaidhriti"}, {180, 180, 27, "Vaidhriti"},
        {180, 180.5, 1, "Vishkumbha"}, {360, 360, 27, "Vaidhriti"},
    };
    for (const auto &expected : cases) {
        clsYoga yoga;
        yoga.moon_position = expected.moon;
        yoga.sun_position = expected.sun;
        yoga.findyoga();
        EXPECT_EQ(yoga.YogaNo, expected.number) << expected.moon;
        EXPECT_EQ(yoga.YogaName, expected.name) << expected.moon;
    }
}

TEST(ClsYoga, KeepsItsResultsOutsideTheCircle) {
    clsYoga yoga;
    yoga.moon_position = 100;
    yoga.findyoga();
    for (const double moon : {-0.1, 720.5}) {
        yoga.moon_position = moon;
        yoga.findyoga();
        EXPECT_EQ(yoga.YogaName, "Dhriti") << moon;
        EXPECT_EQ(yoga.YogaNo, 8) << moon;
    }
}

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
