#include "presentation/ChartCells.h"

#include "presentation/ChartStyles.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace kelvaro {
namespace {

using Cells = std::array<std::string, 12>;

const Names names{// NOLINT(cert-err58-cpp)
                  {"Lag", "Rav", "Cha", "Kuj", "Bud", "Gur", "Suk", "San", "Rah", "Ket", "Gul", "Maa"},
                  {"Lagna", "Surya", "Chandra", "Kuja", "Budha", "Sukra", "Guru", "Sani", "Rahu", "Ketu"},
                  {},
                  {}};

/// Lagna and Sun in Pisces, Moon, Venus and Maandi in Aries, all others in Cancer.
Positions SomePositions() {
    Positions positions;
    for (const BodyFields &fields : bodyFields) {
        positions.*fields.rasi = 4;
    }
    positions.LagnaRasi = positions.SunRasi = 12;
    positions.MoonRasi = positions.VenusRasi = positions.MaandiRasi = 1;
    positions.LagnaLon = 342.5;
    positions.SunLon = 330;
    positions.MoonLon = 3 + 40 / 60.0;
    positions.VenusLon = 29.25;
    return positions;
}

/// The same bodies in houses, of which the first lies in Pisces.
Houses SomeHouses() {
    Houses houses;
    houses.BhavaRasi = {12, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    houses.bodies[0] = {Body::Lagna, Body::Sun};
    houses.BhavaPlanets[0] = "Lag Rav";
    houses.bodies[1] = {Body::Moon, Body::Venus, Body::Maandi};
    houses.BhavaPlanets[1] = "Cha Suk Maa";
    houses.bodies[4] = {Body::Mars};
    houses.BhavaPlanets[4] = "Kuj";
    return houses;
}

void Fill(Chart chart, ChartStyle style, HoroscopeForms &forms) {
    if (chart == Chart::Rasi) {
        FillRasiChart(SomePositions(), names, style, forms);
    } else if (chart == Chart::Navamsa) {
        FillNavamsaChart(SomePositions(), names, style, forms);
    } else {
        FillBhavaChart(SomeHouses(), names, style, forms);
    }
}

struct ChartCase {
    Chart chart;
    ChartForm HoroscopeForms::*window;
    ChartStyle style;
    Cells ChartForm::*cells;
    const char *withLagna, *withMoon; ///< the cells of Pisces and of Aries, next to each other
    bool breaksLines;
};

const std::array<ChartCase, 9> chartCases{{
    {Chart::Rasi, &HoroscopeForms::frm_rasi, ChartStyle::South, &ChartForm::South, "Lag  12.30\r\nRav  0.0",
     "Cha  3.40\r\nSuk  29.15\r\nMaa  0.0", true},
    {Chart::Rasi, &HoroscopeForms::frm_rasi, ChartStyle::East, &ChartForm::East, "Lag    Rav",
     "Cha    Suk  Maa", false},
    {Chart::Rasi, &HoroscopeForms::frm_rasi, ChartStyle::North, &ChartForm::North, "Lagna  Rav  ",
     "Cha  Suk  Maa  ", false},
    {Chart::Navamsa, &HoroscopeForms::frm_Navamsa, ChartStyle::South, &ChartForm::South, "Lag  \r\nRav  ",
     "Cha  \r\nSuk  \r\nMaa  ", true},
    {Chart::Navamsa, &HoroscopeForms::frm_Navamsa, ChartStyle::East, &ChartForm::East, "Lag  \r\nRav  ",
     "Cha  \r\nSuk  \r\nMaa  ", true},
    {Chart::Navamsa, &HoroscopeForms::frm_Navamsa, ChartStyle::North, &ChartForm::North, "Lagna  Rav  ",
     "Cha  Suk  Maa  ", false},
    {Chart::Bhava, &HoroscopeForms::frm_BhavaChart, ChartStyle::South, &ChartForm::South, "Lag Rav",
     "Cha Suk Maa", false},
    {Chart::Bhava, &HoroscopeForms::frm_BhavaChart, ChartStyle::East, &ChartForm::East, "Lag Rav",
     "Cha Suk Maa", false},
    {Chart::Bhava, &HoroscopeForms::frm_BhavaChart, ChartStyle::North, &ChartForm::North, "Lag Rav",
     "Cha Suk Maa", false},
}};

TEST(ChartCells, EachStyleFillsItsOwnCellsAnew) {
    for (const ChartCase &expected : chartCases) {
        SCOPED_TRACE(expected.withMoon);
        HoroscopeForms forms;
        for (const ChartCase &entry : chartCases) {
            (forms.*entry.window.*entry.cells).fill("old");
        }
        const ChartForm &form = forms.*expected.window;
        Fill(expected.chart, ChartStyleOf("south"), forms);
        EXPECT_EQ(form.VisibleFrame, ChartStyle::Unknown);

        Fill(expected.chart, expected.style, forms);
        Fill(expected.chart, expected.style, forms);
        const Cells &cells = form.*expected.cells;
        const bool isNorth = expected.style == ChartStyle::North;
        const std::size_t lagnaCell = isNorth ? 0 : 11;
        const std::size_t moonCell = (lagnaCell + 1) % 12;
        EXPECT_EQ(cells.at(lagnaCell), expected.withLagna);
        EXPECT_EQ(cells.at(moonCell), expected.withMoon);
        EXPECT_TRUE(cells.at((lagnaCell + 4) % 12).starts_with("Kuj"));
        EXPECT_EQ(std::count(cells.begin(), cells.end(), ""), 9);
        EXPECT_EQ(form.VisibleFrame, expected.style);
        for (const ChartCase &other : chartCases) {
            if (&other != &expected) {
                EXPECT_EQ((forms.*other.window.*other.cells).at(11), "old");
            }
        }

        EXPECT_EQ(form.breaksLines, expected.breaksLines);
        std::string values;
        for (const CellBody &body : form.bodies.at(moonCell)) {
            values += body.name + " " + body.degrees + ";";
        }
        EXPECT_EQ(values, std::string(expected.withMoon).starts_with("Cha  3") ? "Cha 3.40;Suk 29.15;Maa 0.0;"
                                                                               : "Cha ;Suk ;Maa ;");
        const std::vector<CellBody> &first = form.bodies.at(lagnaCell);
        ASSERT_EQ(first.size(), 2U);
        EXPECT_TRUE(first[0].IsLagna() && first[1].body == Body::Sun);

        EXPECT_EQ(form.Lab_NHouseNo,
                  isNorth ? (Cells{"12", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"}) : Cells{});
        EXPECT_EQ(form.NorthRasiOfHouse.at(1), isNorth ? 1 : 0);
    }
}

TEST(ChartCells, HousesCountFromTheLagna) {
    EXPECT_EQ(HouseFromLagna(12, 1), 2);
    EXPECT_EQ(HouseFromLagna(1, 12), 12);
    EXPECT_EQ(HouseFromLagna(5, 5), 1);
}

TEST(ChartCells, ASignOutOfRangeRaisesForAKnownKind) {
    HoroscopeForms forms;
    EXPECT_THROW(ChartCellFill(forms, "1", Body::Sun, "Sun", 0, 0), OverflowError);
    EXPECT_THROW(ChartCellFill(forms, "5", Body::Sun, "Sun", 13, 0), OverflowError);
    EXPECT_NO_THROW(ChartCellFill(forms, "4", Body::Sun, "Sun", 13, 0));
}

} // namespace
} // namespace kelvaro
