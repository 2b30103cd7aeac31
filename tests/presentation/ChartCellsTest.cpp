#include "presentation/ChartCells.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace kelvaro {
namespace {

using Cells = std::array<std::string, 12>;

/// Lagna and Sun in Pisces, Moon, Venus and Maandi in Aries, all others in Cancer.
HoroscopeState StateWithStyle(const std::string &style) {
    HoroscopeState state;
    state.preferences.ChartStyle = style;
    state.names.ShortNames = {"Lag", "Rav", "Cha", "Kuj", "Bud", "Gur",
                              "Suk", "San", "Rah", "Ket", "Gul", "Maa"};
    state.names.LongNames = {"Lagna", "Surya", "Chandra", "Kuja", "Budha",
                             "Sukra", "Guru",  "Sani",    "Rahu", "Ketu"};
    state.positions.LagnaRasi = state.positions.SunRasi = 12;
    state.positions.MoonRasi = state.positions.VenusRasi = state.positions.MaandiRasi = 1;
    state.positions.MarsRasi = state.positions.MercuryRasi = state.positions.JupiterRasi =
        state.positions.SaturnRasi = state.positions.RahuRasi = state.positions.KetuRasi =
            state.positions.GulikaRasi = 4;
    state.positions.LagnaLon = 342.5;
    state.positions.SunLon = 330;
    state.positions.MoonLon = 3 + 40 / 60.0;
    state.positions.VenusLon = 29.25;
    return state;
}

struct StyleCase {
    void (*fill)(const HoroscopeState &, HoroscopeForms &);
    ChartForm HoroscopeForms::*window;
    const char *word;
    ChartStyle style;
    Cells ChartForm::*cells;
    std::size_t lagnaCell;
    const char *withLagna, *withMoon; ///< the cells of Pisces and of Aries, next to each other
};

const std::array<StyleCase, 6> styleCases{{
    {FillRasiChart, &HoroscopeForms::frm_rasi, "South", ChartStyle::South, &ChartForm::South, 11,
     "Lag  12.30\r\nRav  0.0", "Cha  3.40\r\nSuk  29.15\r\nMaa  0.0"},
    {FillRasiChart, &HoroscopeForms::frm_rasi, "East", ChartStyle::East, &ChartForm::East, 11, "Lag    Rav",
     "Cha    Suk  Maa"},
    {FillRasiChart, &HoroscopeForms::frm_rasi, "North", ChartStyle::North, &ChartForm::North, 0,
     "Lagna  Rav  ", "Cha  Suk  Maa  "},
    {FillNavamsaChart, &HoroscopeForms::frm_Navamsa, "South", ChartStyle::South, &ChartForm::South, 11,
     "Lag  \r\nRav  ", "Cha  \r\nSuk  \r\nMaa  "},
    {FillNavamsaChart, &HoroscopeForms::frm_Navamsa, "East", ChartStyle::East, &ChartForm::East, 11,
     "Lag  \r\nRav  ", "Cha  \r\nSuk  \r\nMaa  "},
    {FillNavamsaChart, &HoroscopeForms::frm_Navamsa, "North", ChartStyle::North, &ChartForm::North, 0,
     "Lagna  Rav  ", "Cha  Suk  Maa  "},
}};

TEST(ChartCells, EachStyleFillsItsOwnCellsAnew) {
    for (const StyleCase &expected : styleCases) {
        SCOPED_TRACE(expected.word);
        HoroscopeForms forms;
        for (const StyleCase &entry : styleCases) {
            (forms.*entry.window.*entry.cells).fill("old");
        }
        expected.fill(StateWithStyle("south"), forms);
        EXPECT_FALSE((forms.*expected.window).VisibleFrame);

        expected.fill(StateWithStyle(expected.word), forms);
        const Cells &cells = forms.*expected.window.*expected.cells;
        EXPECT_EQ(cells.at(expected.lagnaCell), expected.withLagna);
        EXPECT_EQ(cells.at((expected.lagnaCell + 1) % 12), expected.withMoon);
        EXPECT_TRUE(cells.at((expected.lagnaCell + 4) % 12).starts_with("Kuj"));
        EXPECT_EQ(std::count(cells.begin(), cells.end(), ""), 9);
        EXPECT_EQ((forms.*expected.window).VisibleFrame, expected.style);
        for (const StyleCase &other : styleCases) {
            if (&other != &expected) {
                EXPECT_EQ((forms.*other.window.*other.cells).at(11), "old");
            }
        }
    }
}

TEST(ChartCells, NorthNumbersItsHousesFromTheLagna) {
    HoroscopeForms forms;
    FillRasiChart(StateWithStyle("North"), forms);
    EXPECT_EQ(forms.frm_rasi.Lab_NHouseNo,
              (Cells{"12", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"}));
    EXPECT_EQ(HouseFromLagna(12, 1), 2);
    EXPECT_EQ(HouseFromLagna(1, 12), 12);
    EXPECT_EQ(HouseFromLagna(5, 5), 1);
}

TEST(ChartCells, ASignOutOfRangeRaisesForAKnownKind) {
    HoroscopeForms forms;
    EXPECT_THROW(ChartCellFill(forms, "1", "Sun", 0, 0), OverflowError);
    EXPECT_THROW(ChartCellFill(forms, "5", "Sun", 13, 0), OverflowError);
    EXPECT_NO_THROW(ChartCellFill(forms, "4", "Sun", 13, 0));
}

} // namespace
} // namespace kelvaro
