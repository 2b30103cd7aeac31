#include "astronomy/clsDecimal.h"
#include "panchanga/almanac/ClsSolarYear.h"
#include "panchanga/almanac/ClsVishaGhati.h"
#include "panchanga/almanac/TimeZone.h"
#include "panchanga/almanac/clsKarnam.h"
#include "panchanga/almanac/clsPlanetNature.h"
#include "panchanga/almanac/clsPlanetStrength.h"
#include "panchanga/almanac/clsTimeDisplay.h"
#include "panchanga/clsTithi.h"
#include "runtime/RuntimeError.h"
#include "store/database/Connection.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace kelvaro {
namespace {

TEST(clsDecimal, ReadsDegreesMinutesAndSeconds) {
    const clsDecimal decimal;
    EXPECT_DOUBLE_EQ(decimal.FnFindDecimal("011.06.40"), 11.111111111111111);
    EXPECT_DOUBLE_EQ(decimal.FnFindDecimal("360.00.00"), 360);
    EXPECT_DOUBLE_EQ(decimal.FnFindDecimal("000:30'18"), 0.505) << "the separators are not looked at";
    for (const char *text : {"", "011", "01x.06.40", "011.x6.40", "011.06.4x"}) {
        EXPECT_THROW(decimal.FnFindDecimal(text), ConversionError) << text;
    }
}

TEST(clsKarnam, HalvesTheTithi) {
    clsKarnam karnam;
    karnam.TithiStart = MomentOf({2024, 3, 1}, {22, 0, 0});
    karnam.TithiEnd = MomentOf({2024, 3, 2}, {20, 0, 0});
    std::set<std::string> names;
    for (int number = 1; number <= 30; ++number) {
        karnam.TithiNo = std::to_string(number);
        karnam.FindKarnam();
        names.insert({karnam.KarnamName1, karnam.KarnamName2});
        // The classifier of the moment names the same karanas, three and nine degrees into the tithi.
        clsTithi tithi;
        tithi.moonA = number * 12 - 9;
        tithi.FindTithi();
        EXPECT_EQ(karnam.KarnamName1, tithi.Karnam) << number;
        tithi.moonA = number * 12 - 3;
        tithi.FindTithi();
        EXPECT_EQ(karnam.KarnamName2, tithi.Karnam) << number;
    }
    EXPECT_EQ(names, (std::set<std::string>{"Kintughna", "Bava", "Balav", "Kaulav", "Bav", "Balava",
                                            "Kaulava", "Taitila", "Gar", "Vanija", "Vishti", "Shakuni",
                                            "Chatushpada", "Naga"}));
    EXPECT_EQ(Split(karnam.KarnamEnd1), (CivilMoment{{2024, 3, 2}, {9, 0, 0}}));
    EXPECT_EQ(karnam.KarnamStart1, karnam.TithiStart);
    EXPECT_EQ(karnam.KarnamStart2, karnam.KarnamEnd1);
    EXPECT_EQ(karnam.KarnamEnd2, karnam.TithiEnd);
    karnam.TithiNo = "31";
    EXPECT_THROW(karnam.FindKarnam(), OverflowError);
    karnam.TithiNo = "Purnima";
    EXPECT_THROW(karnam.FindKarnam(), ConversionError);
    EXPECT_EQ(karnam.TithiNumber, 30);
}

TEST(ClsVishaGhati, SpansLieInTheirStars) {
    ClsVishaGhati visha;
    visha.dispVishaghati();
    for (std::size_t star = 0; star < visha.Spans.size(); ++star) {
        const auto &span = visha.Spans.at(star);
        const double startOfStar = static_cast<double>(star) * 360 / 27;
        EXPECT_GT(span.start, startOfStar) << star;
        EXPECT_LE(span.end, startOfStar + 360.0 / 27 + 1e-9) << star;
        const double seconds = span.endText == "339.33.40" ? 3220 : 3200;
        EXPECT_NEAR((span.end - span.start) * 3600, seconds, 1e-6) << span.startText;
    }
    EXPECT_EQ(visha.Spans[0].endText, "12.00.00");
    EXPECT_EQ(visha.Spans[0].end, 12);
    EXPECT_NEAR(visha.Spans[26].start, 353 + 20.0 / 60, 1e-12);
}

TEST(clsPlanetNature, ReadsTheRowOfTheLagna) {
    clsPlanetNature nature;
    const auto natures = [&](double lagna) {
        nature.LagnaPosition = lagna;
        nature.FindPlanet();
        return std::vector<std::int32_t>{nature.SunNature,     nature.MoonNature,    nature.MarsNature,
                                         nature.MercuryNature, nature.JupiterNature, nature.VenusNature,
                                         nature.SaturnNature};
    };
    EXPECT_EQ(natures(29.999), (std::vector<std::int32_t>{1, 1, 1, -1, 1, 0, -1}));
    EXPECT_EQ(natures(30), (std::vector<std::int32_t>{1, 0, -1, 1, -2, 1, 1}));
    const std::vector<std::int32_t> pisces{-1, 1, 1, 0, 2, -2, -2};
    EXPECT_EQ(natures(359.9), pisces);
    EXPECT_EQ(natures(360), pisces) << "nothing is assigned";
    EXPECT_EQ(natures(-1), pisces) << "nothing is assigned";
}

TEST(clsPlanetStrength, ReadsTheWordOfTheSign) {
    clsPlanetStrength strength;
    strength.MercuryHouse = 5;
    strength.JupiterHouse = 9;
    strength.KethuHouse = 11;
    strength.FindPlanetStrength();
    EXPECT_EQ(strength.SunStrength, "Exa");
    EXPECT_EQ(strength.MercuryStrength, "exa-own");
    EXPECT_EQ(strength.JupiterStrength, "deb");
    EXPECT_EQ(strength.KethuStrength, "Neu");
    strength.SunHouse = 12;
    strength.KethuHouse = -1;
    strength.FindPlanetStrength();
    EXPECT_EQ(strength.SunStrength + strength.KethuStrength, "ExaNeu") << "nothing is assigned";
}

TEST(ClsSolarYear, ReadsTheRowOfTheCycle) {
    store::Connection connection;
    connection.OpenCopyInMemory(KELVARO_SEED_DATABASE);
    store::KaliyugaYearTable table(connection);
    ClsSolarYear year(table);
    year.EnglishYear = 1987;
    year.FindSolarYear();
    EXPECT_EQ(year.yearname, "Prabhava");
    EXPECT_EQ(std::tuple(year.YearVal, year.YearRemain, year.YearDay), std::tuple(1.2587, 0.2587, 1));
    year.EnglishYear = 2107;
    year.FindSolarYear();
    EXPECT_EQ(year.yearname, "");
}

TEST(clsTimeDisplay, PlacesAStretchOnTheDay) {
    clsTimeDisplay display;
    display.Sunrisetime = MomentOf({2024, 3, 1}, {6, 0, 0});
    display.Sunsettime = MomentOf({2024, 3, 1}, {18, 0, 0});
    display.TimeStart = MomentOf({2024, 3, 1}, {7, 30, 0});
    display.TimeEnd = MomentOf({2024, 3, 1}, {9, 0, 0});
    display.DisplayTime();
    EXPECT_EQ(display.TimeCaption, "07:30:00 to 09:00:00");
    EXPECT_EQ(std::tuple(display.TimeLeft, display.TimeWidth), std::tuple(1250, 1250));
    EXPECT_EQ(std::tuple(display.TimeBackColor, display.TimeForeColor), std::tuple(0xE6D9BDU, 0x54341EU));
    display.TimeStart = MomentOf({2024, 3, 1}, {3, 0, 0});
    display.DisplayTime();
    EXPECT_EQ(std::tuple(display.TimeLeft, display.TimeBackColor), std::tuple(-2500, 0x54341EU));
    display.Sunsettime = display.Sunrisetime;
    EXPECT_THROW(display.DisplayTime(), ArithmeticError);
}

TEST(TimeZone, GivesAnHourToFifteenDegrees) {
    TimeZone zone{-67, 30};
    zone.findTimeZone();
    EXPECT_EQ(zone.TimeZone, -4.5);
}

} // namespace
} // namespace kelvaro
