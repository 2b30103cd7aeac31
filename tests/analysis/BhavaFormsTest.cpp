#include "analysis/BhavaForms.h"

#include "horoscope/NamesForLanguage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace kelvaro {
namespace {

using Cells = std::array<std::string, 12>;
using Row = std::vector<std::string>;

/// Lagna in the last degree of Cancer: houses 1 to 12 in steps of 30 degrees from it, rasis 4 to 12 and 1
/// to 3.
HoroscopeState StateWithStyle(const char *style) {
    HoroscopeState state;
    LoadNamesForLanguage(state);
    state.preferences.ChartStyle = style;
    state.positions.LagnaLon = 119.25;
    state.positions.MidHeaven = 29.25;
    state.positions.SunLon = 134.25; // sandhi of house 1
    state.positions.MoonLon = state.positions.MarsLon = state.positions.MercuryLon =
        state.positions.JupiterLon = state.positions.VenusLon = 240;
    state.positions.SaturnLon = state.positions.RahuLon = state.positions.KetuLon = 28;
    return state;
}

struct StyleCase {
    const char *word;
    ChartStyle style;
    Cells ChartForm::*cells;
    std::size_t firstCell;
};

const std::array<StyleCase, 3> styleCases{{
    {"South", ChartStyle::South, &ChartForm::South, 3},
    {"East", ChartStyle::East, &ChartForm::East, 3},
    {"North", ChartStyle::North, &ChartForm::North, 0},
}};

TEST(BhavaForms, EachStyleFillsItsOwnCellsAnew) {
    for (const StyleCase &expected : styleCases) {
        SCOPED_TRACE(expected.word);
        HoroscopeForms forms;
        clsStar star;
        ChartForm &chart = forms.frm_BhavaChart;
        for (const StyleCase &entry : styleCases) {
            (chart.*entry.cells).fill("old");
        }
        HoroscopeState state = StateWithStyle("Round");
        FillBhava(state, forms, star);
        EXPECT_FALSE(chart.VisibleFrame);

        state = StateWithStyle(expected.word);
        FillBhava(state, forms, star);
        Cells houses = chart.*expected.cells;
        std::rotate(houses.begin(), houses.begin() + static_cast<std::ptrdiff_t>(expected.firstCell),
                    houses.end());
        EXPECT_EQ(houses, (Cells{"Asc Sun", "Sun", "", "", "Moo Mar Mer Jup Ven", "", "", "", "",
                                 "Sat Rah Ket", "", ""}));
        EXPECT_EQ(chart.VisibleFrame, expected.style);
        const bool isNorth = expected.style == ChartStyle::North;
        EXPECT_EQ(chart.Lab_NHouseNo,
                  isNorth ? (Cells{"4", "5", "6", "7", "8", "9", "10", "11", "12", "1", "2", "3"}) : Cells{});
        for (const StyleCase &other : styleCases) {
            if (&other != &expected) {
                EXPECT_EQ((chart.*other.cells).at(11), "old");
            }
        }
    }
}

TEST(BhavaForms, TablesShowLimitsAndMiddles) {
    HoroscopeForms forms;
    clsStar star;
    HoroscopeState state = StateWithStyle("South");
    FillBhava(state, forms, star);
    FillBhava(state, forms, star);

    const TextGrid &limits = forms.frm_CBhava.msh_Bhava;
    EXPECT_EQ(limits.header, "House  |  Start Bhava | Mid Bhava    | Sandhi          | Planets               "
                             "                                        ");
    ASSERT_EQ(limits.rows.size(), 12U);
    EXPECT_EQ(limits.rows.at(0), (Row{"1", "104.15.0", "119.15.0", "134.15.0", "Asc Sun"}));
    EXPECT_EQ(limits.rows.at(11), (Row{"12", "74.15.0", "89.15.0", "104.15.0", ""}));

    // 29.25 degrees in Cancer, then in Aries: star and sub lord by hand.
    const TextGrid &middles = forms.frm_CBhava.bhava_features;
    EXPECT_EQ(middles.header,
              "House         |Longitude |   Rasi       | Rasi Lord |  Star             | Pada "
              "|Star Lord       |Sub  Lord    ");
    ASSERT_EQ(middles.rows.size(), 12U);
    EXPECT_EQ(middles.rows.at(0),
              (Row{"1", "119.15.0", "Cancer", "Moon", "Ashlesha", "4", "Mercury", "Saturn"}));
    EXPECT_EQ(middles.rows.at(9), (Row{"10", "29.15.0", "Aries", "Mars", "Kritika", "1", "Sun", "Rahu"}));
}

} // namespace
} // namespace kelvaro
