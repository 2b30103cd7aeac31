#include "horoscope/CalculateHoroscope.h"

#include "panchanga/Sign.h"
#include "runtime/MomentText.h"
#include "tests/horoscope/HoroscopeFixture.h"

#include <cmath>
#include <utility>

namespace kelvaro {
namespace {

class CalculateHoroscopeTest : public HoroscopeTest {};

TEST_F(CalculateHoroscopeTest, SampleBirthFillsBothCharts) {
    horoscope.CurrentView = "Navamsa";
    CalculateHoroscope(horoscope);

    EXPECT_EQ(display.failure, "");
    ASSERT_GE(display.events.size(), 4U);
    EXPECT_EQ(display.events.front(), "open");
    EXPECT_EQ(display.events.at(1), "hide");
    EXPECT_EQ(display.events.back(), "close");
    EXPECT_EQ(display.Count("show Navamsa"), 1U);
    EXPECT_EQ(display.Count("advance"), 15U);
    EXPECT_EQ(MomentText(horoscope.state.positions.BirthMomentDate), "14/07/1965 02:15 PM");
    EXPECT_EQ(horoscope.state.day.DayOrNight, "Day");
    EXPECT_EQ(horoscope.forms.frm_rasi.VisibleFrame, ChartStyle::South);
    EXPECT_EQ(horoscope.forms.frm_Navamsa.VisibleFrame, ChartStyle::South);
    // After the run the numbers are those of the Rasi chart, whatever pass the Navamsa chart needed.
    for (const BodyFields &body : bodyFields) {
        const double longitude = horoscope.state.positions.*body.longitude;
        EXPECT_EQ(horoscope.state.positions.*body.rasi, static_cast<int>(longitude / 30) + 1);
        const std::string &name = ShortNameOf(horoscope.state.names, body.body);
        const int navamsa = static_cast<int>(longitude / (10.0 / 3)) % 12;
        EXPECT_NE(horoscope.forms.frm_Navamsa.South.at(static_cast<std::size_t>(navamsa)).find(name),
                  std::string::npos)
            << name;
    }
}

TEST_F(CalculateHoroscopeTest, FailedStepEndsTheRunAndLeavesEmptyViews) {
    CalculateHoroscope(horoscope);
    ASSERT_FALSE(horoscope.forms.frm_rasi.South.at(0).empty() &&
                 horoscope.forms.frm_rasi.South.at(1).empty());
    display.events.clear();

    horoscope.state.birth.BirthDay = "31";
    horoscope.state.birth.BirthMonth = "Jun";
    horoscope.CurrentView = "Rasi";
    CalculateHoroscope(horoscope);

    EXPECT_EQ(display.failedStep, "Rasi positions");
    EXPECT_NE(display.failure.find("31/6/1965"), std::string::npos) << display.failure;
    EXPECT_EQ(display.Count("show Rasi"), 1U);
    EXPECT_EQ(display.Count("advance"), 1U);
    EXPECT_EQ(horoscope.forms.frm_UserDetails.txtGName, "");
    EXPECT_TRUE(horoscope.forms.Frm_Dasa.mshDasa.rows.empty());
    EXPECT_EQ(display.events.back(), "close");
    for (const std::string &cell : horoscope.forms.frm_rasi.South) {
        EXPECT_EQ(cell, "");
    }

    horoscope.state.birth.BirthDay = "30";
    display.failedStep.clear();
    CalculateHoroscope(horoscope);
    EXPECT_EQ(display.failedStep, "");
}

TEST_F(CalculateHoroscopeTest, NoSecondRunStartsInsideOne) {
    display.atEachAdvance = [this] { CalculateHoroscope(horoscope); };
    CalculateHoroscope(horoscope);
    EXPECT_EQ(display.Count("open"), 1U);
    EXPECT_EQ(display.Count("close"), 1U);
}

TEST_F(CalculateHoroscopeTest, LimitsOfTheDayLieInTheNight) {
    CalculateHoroscope(horoscope);
    const Moment sunrise = horoscope.state.day.SunriseOfBirthDay;
    const Moment sunset = horoscope.state.day.SunsetOfBirthDay;

    struct Case {
        Moment birth;
        const char *dayOrNight;
        int dateOfDaySunrise; ///< day of July
    };
    const std::vector<Case> cases{
        {sunrise, "Night", 13},
        {DateAdd(Interval::Minute, 1, sunrise), "Day", 14},
        {DateAdd(Interval::Minute, -1, sunset), "Day", 14},
        {sunset, "Night", 14},
        {MomentOf({1965, 7, 14}, {23, 59, 0}), "Night", 14},
        {MomentOf({1965, 7, 15}, {0, 0, 0}), "Night", 14},
    };
    for (const Case &test : cases) {
        SCOPED_TRACE(MomentText(test.birth));
        SetBirth(test.birth);
        CalculateHoroscope(horoscope);
        const HoroscopeState &state = horoscope.state;
        EXPECT_EQ(state.day.DayOrNight, test.dayOrNight);
        EXPECT_EQ(Split(state.day.DaySunrise).date, (CivilDate{1965, 7, test.dateOfDaySunrise}));
        const bool isDay = state.day.DayOrNight == "Day";
        for (const Moment rise : {state.day.GulikaMoment, state.day.MandiMoment}) {
            EXPECT_GE(rise, isDay ? state.day.DaySunrise : state.day.DaySunset);
            EXPECT_LE(rise, isDay ? state.day.DaySunset : state.day.DayNextSunrise);
        }
    }
}

TEST_F(CalculateHoroscopeTest, DayOfBirthHoldsAlsoBeforeTheOriginOfMoments) {
    for (const int hour : {1, 5, 12, 20, 23}) {
        SetBirth(MomentOf({1850, 3, 9}, {hour, 30, 0}));
        CalculateHoroscope(horoscope);
        const HoroscopeState &state = horoscope.state;
        EXPECT_EQ(display.failure, "");
        EXPECT_GT(state.positions.BirthMomentDate, state.day.DaySunrise) << hour;
        EXPECT_LT(state.positions.BirthMomentDate, state.day.DayNextSunrise) << hour;
        EXPECT_EQ(state.day.DayOrNight, hour == 12 ? "Day" : "Night");
    }
}

// The Sun set at 23:59 of the day before, and at 0:01 of the day after. The run before ended with the last
// month of the solar year, and what it looked at last is carried over.
TEST_F(CalculateHoroscopeTest, TellsWhatStandsInThePlaceOfASunset) {
    const Site reykjavik{64, 9, "N", 21, 57, "W", 0, "E"};
    horoscope.state.site = reykjavik;
    SetBirth(MomentOf({1995, 6, 16}, {12, 0, 0}));
    CalculateHoroscope(horoscope);
    EXPECT_EQ(display.failedStep, "Rasi positions");
    EXPECT_EQ(
        display.failure,
        "The Sun does not set here on 16/Jun/1995, or for under two hours. No sunset near it is known.");

    display.failure.clear();
    SetBirth(MomentOf({1995, 6, 14}, {12, 0, 0}));
    CalculateHoroscope(horoscope);
    EXPECT_EQ(display.remark, "");
    SetBirth(MomentOf({1995, 6, 16}, {12, 0, 0}));
    CalculateHoroscope(horoscope);
    EXPECT_EQ(display.failure, "");
    EXPECT_EQ(display.remark, "The Sun does not set here on 16/Jun/1995, or for under two hours. Taken: the "
                              "sunset of 14/Mar/1996 07:27 PM.");
}

// Each in a program just started, which has no earlier sunset to go on from.
TEST_F(CalculateHoroscopeTest, PolarBirthsAreComputedOrRefusedInWords) {
    int remarks = 0;
    int refusals = 0;
    for (const double latitude : {64.0, 66.5, 67.0, 69.0, 75.0, 89.0, 90.0}) {
        for (const char *side : {"N", "S"}) {
            for (int month = 0; month < 24; ++month) {
                Horoscope polar(connection, display);
                polar.state.birth.BirthYear = month % 2 == 0 ? "1921" : "2045";
                polar.state.birth.BirthMonth = std::to_string(month / 2 + 1);
                polar.state.birth.BirthDay = std::to_string(month + 1);
                polar.state.birth.BirthHour = std::to_string(month);
                polar.state.site = {latitude, 0, side, 18, 57, "E", 1, "E"};
                polar.state.preferences.BhavaSystem = month % 3 == 0 ? "Not Equal" : "Equal";
                CalculateHoroscope(polar);
                const std::string remark = std::exchange(display.remark, "");
                const std::string failure = std::exchange(display.failure, "");
                remarks += remark.empty() ? 0 : 1;
                refusals += failure.empty() ? 0 : 1;
                EXPECT_TRUE(failure.empty() || failure.starts_with("The Sun ")) << failure;
                EXPECT_TRUE(remark.empty() || failure.empty());
            }
        }
    }
    EXPECT_GT(remarks, 50);
    EXPECT_GT(refusals, 0);
}

TEST_F(CalculateHoroscopeTest, ACustomAyanamsaKeepsToTheBoundsOfThePreferences) {
    struct Case {
        const char *word;
        double zeroYear, progress;
        bool isRefused;
    };
    for (const Case &test :
         {Case{"Custom", 0, 0, false}, Case{"Custom", 2003, 1000, false}, Case{"Custom", 2003.5, 50, true},
          Case{"Custom", -1, 50, true}, Case{"Custom", 285, 1000.5, true}, Case{"Custom", 285, -0.5, true},
          Case{"Custom", 285, 1e15, true}, Case{"Lahiri", -1, 1e15, false}}) {
        Preferences &preferences = horoscope.state.preferences;
        preferences.AyanamsaName = preferences.AyanamsaInForce = test.word;
        preferences.PrefYear = preferences.YearInForce = test.zeroYear;
        preferences.PrefProgress = preferences.ProgressInForce = test.progress;
        display.failure.clear();
        CalculateHoroscope(horoscope);
        EXPECT_EQ(display.failure.starts_with("The custom ayanamsa wants a zero year from 0 to 2003 and a "
                                              "progression from 0 to 1000, not "),
                  test.isRefused)
            << display.failure;
    }
}

// The settings may hold such a place.
TEST_F(CalculateHoroscopeTest, PlacesFromOutsideTheWorldAreComputedOrRefusedInWords) {
    for (const auto field : {&Site::LatDeg, &Site::LatMin, &Site::LonDeg, &Site::LonMin, &Site::TimeDiff}) {
        for (const double number : {1e308, -1e308, 1e15, -1e9, 91.0, -91.0, 4e-324, 8760000.0}) {
            horoscope.state.site.*field = number;
            CalculateHoroscope(horoscope);
            if (std::exchange(display.failure, "").empty()) {
                EXPECT_TRUE(std::isfinite(horoscope.state.positions.LagnaLon)) << number;
                EXPECT_TRUE(std::isfinite(horoscope.state.positions.MoonLon)) << number;
                EXPECT_TRUE(std::isfinite(horoscope.state.day.MandiMoment.Serial())) << number;
            }
            horoscope.state.site = sampleSite;
            CalculateHoroscope(horoscope);
            EXPECT_EQ(display.failure, "") << "the next chart is computed, after " << number;
        }
    }
}

TEST(RasiOfLongitudeTest, CountsPartsThroughTheCircle) {
    EXPECT_EQ(RasiOfLongitude(29.999999, rasiSize), 1);
    EXPECT_EQ(RasiOfLongitude(30, rasiSize), 2);
    EXPECT_EQ(RasiOfLongitude(360, rasiSize), 1);
    EXPECT_EQ(RasiOfLongitude(39.99, navamsaSize), 12);
    EXPECT_EQ(RasiOfLongitude(40, navamsaSize), 1);
    // The Navamsa size is a hair below the third of ten, so that a limit belongs to the part that it opens.
    EXPECT_EQ(RasiOfLongitude(10.0 / 3, navamsaSize), 2);
}

} // namespace
} // namespace kelvaro
