#include "analysis/Ashtakavarga.h"

#include "horoscope/NamesForLanguage.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <array>

namespace kelvaro {
namespace {

const Names names = *NamesIn(Language::English); // NOLINT(cert-err58-cpp)

/// From the rasis of Lagna to Ketu.
TextGrid GridOf(const std::array<std::int16_t, 10> &rasis, Language language = Language::English) {
    Positions positions;
    for (std::size_t i = 0; i < rasis.size(); ++i) {
        positions.*bodyFields[i].rasi = rasis[i];
    }
    return AshtakavargaGrid(positions, names, language);
}

// Reckoned outside the program for Lagna in Scorpio, Sun and Venus in Gemini, Moon in Leo, Mars in Virgo,
// Mercury in Cancer, Jupiter in Taurus, Saturn in Aquarius.
TEST(Ashtakavarga, AChartReckonedByHand) {
    constexpr std::array<std::array<int, 11>, 13> expected{{
        {4, 6, 5, 6, 7, 4, 6, 4, 3, 38, 45},
        {5, 4, 3, 5, 3, 4, 2, 5, 3, 26, 34},
        {4, 3, 2, 5, 5, 4, 5, 4, 3, 28, 35},
        {2, 3, 1, 3, 7, 4, 3, 5, 3, 23, 31},
        {2, 5, 3, 3, 4, 3, 2, 5, 6, 22, 33},
        {6, 3, 4, 6, 4, 6, 3, 5, 1, 32, 38},
        {5, 4, 5, 5, 3, 3, 2, 4, 5, 27, 36},
        {3, 4, 5, 5, 4, 5, 3, 4, 3, 29, 36},
        {5, 4, 3, 5, 6, 5, 3, 2, 5, 31, 38},
        {4, 5, 3, 2, 2, 5, 4, 4, 5, 25, 34},
        {3, 5, 2, 4, 5, 4, 3, 5, 3, 26, 34},
        {5, 3, 3, 5, 6, 5, 3, 2, 3, 30, 35},
        {48, 49, 39, 54, 56, 52, 39, 49, 43, 337, 429},
    }};
    const TextGrid grid = GridOf({8, 3, 5, 6, 4, 2, 3, 11, 1, 7});
    for (std::size_t row = 0; row < expected.size(); ++row) {
        EXPECT_EQ(grid.rows.at(row).front(), row < 12 ? names.RasiNames[row] : "Total");
        for (std::size_t column = 0; column < expected[row].size(); ++column) {
            EXPECT_EQ(grid.rows.at(row).at(column + 1), std::to_string(expected[row][column]))
                << row << ", " << column;
        }
    }
}

TEST(Ashtakavarga, HeaderFollowsTheLanguage) {
    const std::array<std::int16_t, 10> aries{1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    for (const Language language : {Language::English, Language::Unknown}) {
        EXPECT_EQ(GridOf(aries, language).header,
                  "Zodiac       | Sun    |Moon   |Mars |Mercury|Jupiter|Venus|Saturn|Asc   *|Rahu *|Total "
                  "|Total With * ");
    }
    EXPECT_EQ(GridOf(aries, Language::Sanskrit).header,
              "Rasi         | Surya  |Chandra|Kuja |Budha  |Guru   |Sukra|Sani  |Lagna *|Rahu *|Total "
              "|Total With *");
}

TEST(Ashtakavarga, TheMoonLeavesASignOfTheNavamsaAsItWas) {
    clsStar stars;
    stars.PlanetPosition = 10;
    stars.findstar();
    const MoonStar moon = MoonStarOf(259, stars);
    EXPECT_EQ(moon.MoonStarName, "Poorvashada");
    EXPECT_EQ(moon.MoonStarPada, 2);
    EXPECT_EQ(moon.MoonHouseNo, 3) << "left from the position before";
}

TEST(Ashtakavarga, ARasiThatDoesNotExistIsAnError) {
    EXPECT_THROW(GridOf({}), OverflowError);
    EXPECT_THROW(GridOf({1, 25, 1, 1, 1, 1, 1, 1, 1, 1}), OverflowError);
}

} // namespace
} // namespace kelvaro
