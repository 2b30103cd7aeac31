#include "panchanga/clsTithi.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>

namespace kelvaro {
namespace {

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
        {54, 0, 5, "Panchami", "Bav"},
        {102, 0, 9, "Navami", "Balava"},
        {180, 0, 15, "Purnima", "Bav"},
        {180.5, 0, 16, "Pratipada", "Balav"},
        {312, 0, 26, "Ekadashi", "Balava"},
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

} // namespace
} // namespace kelvaro
