#include "analysis/Ashtakavarga.h"

#include "horoscope/NamesForLanguage.h"
#include "horoscope/record/Bodies.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace kelvaro {
namespace {

class AshtakavargaTest : public testing::Test {
protected:
    AshtakavargaTest() { LoadNamesForLanguage(state_); }

    /// Rasis of Lagna to Ketu.
    void Fill(const std::array<std::int16_t, 10> &rasis) {
        for (std::size_t i = 0; i < rasis.size(); ++i) {
            state_.positions.*bodyFields[i].rasi = rasis[i];
        }
        FillAshtakavarga(state_, form_, stars_);
    }

    int Points(std::size_t row, std::size_t column) const {
        return std::stoi(form_.mshAshtaVarga.rows.at(row).at(column));
    }

    HoroscopeState state_;
    AshtakavargaForm form_;
    clsStar stars_;
};

// Reckoned outside the program for Lagna in Scorpio, Sun and Venus in Gemini, Moon in Leo, Mars in Virgo,
// Mercury in Cancer, Jupiter in Taurus, Saturn in Aquarius.
TEST_F(AshtakavargaTest, AChartReckonedByHand) {
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
    Fill({8, 3, 5, 6, 4, 2, 3, 11, 1, 7});
    for (std::size_t row = 0; row < expected.size(); ++row) {
        EXPECT_EQ(form_.mshAshtaVarga.rows.at(row).front(), row < 12 ? state_.names.RasiNames[row] : "Total");
        for (std::size_t column = 0; column < expected[row].size(); ++column) {
            EXPECT_EQ(Points(row, column + 1), expected[row][column]) << row << ", " << column;
        }
    }
}

TEST_F(AshtakavargaTest, TotalsAreTheSameForEveryChart) {
    constexpr std::array<int, 11> totals{48, 49, 39, 54, 56, 52, 39, 49, 43, 337, 429};
    std::mt19937_64 random(815);
    for (int chart = 0; chart < 1000; ++chart) {
        std::array<std::int16_t, 10> rasis{};
        for (std::int16_t &rasi : rasis) {
            rasi = static_cast<std::int16_t>(random() % 12 + 1);
        }
        Fill(rasis);
        for (std::size_t column = 1; column <= totals.size(); ++column) {
            int sum = 0;
            for (std::size_t row = 0; row < 12; ++row) {
                ASSERT_LE(Points(row, column), column < 10 ? 8 : 72);
                sum += Points(row, column);
            }
            ASSERT_EQ(sum, totals[column - 1]);
            ASSERT_EQ(Points(12, column), totals[column - 1]);
        }
    }
}

TEST_F(AshtakavargaTest, HeaderFollowsTheLanguage) {
    const std::string english = "Zodiac       | Sun    |Moon   |Mars |Mercury|Jupiter|Venus|Saturn|Asc   "
                                "*|Rahu *|Total |Total With * ";
    for (const char *language : {"English", "Tamil"}) {
        state_.preferences.Language = language;
        Fill({1, 1, 1, 1, 1, 1, 1, 1, 1, 1});
        EXPECT_EQ(form_.mshAshtaVarga.header, english);
    }
    state_.preferences.Language = "Sanskrit";
    Fill({1, 1, 1, 1, 1, 1, 1, 1, 1, 1});
    EXPECT_EQ(form_.mshAshtaVarga.header, "Rasi         | Surya  |Chandra|Kuja |Budha  |Guru   |Sukra|Sani  "
                                          "|Lagna *|Rahu *|Total |Total With *");
}

TEST_F(AshtakavargaTest, KeepsTheStarOfTheMoon) {
    stars_.PlanetPosition = 10;
    stars_.findstar();
    state_.positions.MoonLon = 259;
    Fill({1, 1, 1, 1, 1, 1, 1, 1, 1, 1});
    EXPECT_EQ(state_.moonStar.MoonStarName, "Poorvashada");
    EXPECT_EQ(state_.moonStar.MoonStarPada, 2);
    EXPECT_EQ(state_.moonStar.MoonHouseNo, 3) << "left from the position before";
}

TEST_F(AshtakavargaTest, ARasiThatDoesNotExistIsAnError) {
    EXPECT_THROW(Fill({}), OverflowError);
    EXPECT_THROW(Fill({1, 25, 1, 1, 1, 1, 1, 1, 1, 1}), OverflowError);
}

} // namespace
} // namespace kelvaro
