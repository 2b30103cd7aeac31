#include "horoscope/CalculateHoroscope.h"
#include "runtime/MomentText.h"
#include "tests/horoscope/HoroscopeFixture.h"

#include <utility>

namespace kelvaro {
namespace {

class BirthSummaryTest : public HoroscopeTest {
protected:
    const UserDetailsForm &Summary() {
        CalculateHoroscope(horoscope);
        EXPECT_EQ(display.failure, "");
        return horoscope.forms.frm_UserDetails;
    }
};

TEST_F(BirthSummaryTest, HoursOfTheTwelveHourClock) {
    const std::pair<const char *, const char *> cases[] = {
        {"0", "12 : 15  AM"}, {"11", "11 : 15  AM"}, {"12", "12 : 15  PM"}, {"23", "11 : 15  PM"}};
    for (const auto &[hour, text] : cases) {
        horoscope.state.birth.BirthHour = hour;
        EXPECT_EQ(Summary().txtTimeOfBirth, text);
    }
}

TEST_F(BirthSummaryTest, LocalMeanTimeOnBothSidesOfMeridianAndGreenwich) {
    struct Case {
        double degrees, minutes;
        const char *side;
        double zone;
        const char *zoneSide, *localMeanTime;
    };
    const std::vector<Case> cases{
        {82, 30, "E", 5.5, "E", "14/Jul/1965 02:15 PM"},          // on the meridian
        {82, 30, "E", 5.5000000002, "E", "14/Jul/1965 02:15 PM"}, // 1.2e-08 minutes off it
        {83, 0, "E", 5.5, "E", "14/Jul/1965 02:17 PM"},           // a whole number of minutes
        {78, 28, "E", 5.5, "E", "14/Jul/1965 01:58 PM"},          // 16 minutes 8 seconds back
        {82, 46, "E", 5.5, "E", "14/Jul/1965 02:16 PM"},          // 1 minute 4 seconds on
        {74, 0, "W", 5, "W", "14/Jul/1965 02:19 PM"},             // New York lies east of its meridian
        {0, 30, "W", 0, "E", "14/Jul/1965 02:13 PM"},             // west of Greenwich under its time
        {179, 0, "W", 13, "E", "13/Jul/1965 01:19 PM"},           // Tonga: the same time a day apart
        {172, 0, "E", 11.5, "E", "14/Jul/1965 02:13 PM"},         // an old half-hour zone
    };
    for (const Case &test : cases) {
        horoscope.state.site = {17, 20, "N", test.degrees, test.minutes, test.side, test.zone, test.zoneSide};
        EXPECT_EQ(Summary().txtlmt, test.localMeanTime) << test.degrees << test.side;
    }
}

TEST_F(BirthSummaryTest, BirthAroundSunriseBelongsToTheDayThatItsClockSays) {
    CalculateHoroscope(horoscope);
    const Moment sunrise = horoscope.state.day.SunriseOfBirthDay;

    // In the minute of sunrise the day before still counts, though the Vedic weekday has begun.
    SetBirth(sunrise);
    EXPECT_EQ(Summary().txtVedic, "Wednesday");
    EXPECT_EQ(Split(horoscope.state.ghati.SunriseForGhati).date, (CivilDate{1965, 7, 13}));
    EXPECT_GT(horoscope.state.ghati.IshtaGhati, 58);

    SetBirth(DateAdd(Interval::Minute, -1, sunrise));
    EXPECT_EQ(Summary().txtVedic, "Tuesday");
    EXPECT_EQ(horoscope.forms.frm_UserDetails.txtGregorian, "Wednesday");

    // A minute after sunrise the new day counts, and the local mean time is still fifteen minutes short of
    // it.
    SetBirth(DateAdd(Interval::Minute, 1, sunrise));
    EXPECT_EQ(Summary().txtIshtaGhati, "-00:6250");
    EXPECT_EQ(horoscope.state.ghati.IshtaGhatiMinutes, -15);
}

TEST_F(BirthSummaryTest, ABirthWithoutASolarYearShowsNoSolarDate) {
    SetBirth(MomentOf({1850, 6, 1}, {12, 0, 0}));
    EXPECT_EQ(Summary().txtSolarDate, "");
    SetBirth(MomentOf({1965, 7, 14}, {14, 15, 0}));
    EXPECT_EQ(Summary().txtSolarDate, "30  /  Jyeshtha  /  Visvavasu");
    SetBirth(MomentOf({1850, 6, 1}, {12, 0, 0}));
    EXPECT_EQ(Summary().txtSolarDate, "") << "not that of the birth before";
    EXPECT_EQ(horoscope.forms.frm_UserDetails.txtKaliyugaYear, "0");
}

TEST_F(BirthSummaryTest, AnAyanamsaBelowOneDegreeKeepsItsSign) {
    horoscope.state.preferences.AyanamsaName = horoscope.state.preferences.AyanamsaInForce = "Custom";
    horoscope.state.preferences.PrefYear = horoscope.state.preferences.YearInForce = 1950;
    horoscope.state.preferences.PrefProgress = horoscope.state.preferences.ProgressInForce = 50;
    // 15 x 50 seconds and, for 194 days of 365.25, 26.6 of another 50.
    EXPECT_EQ(Summary().txtAyanamsa, "-0.12.57  (Custom)");
}

TEST_F(BirthSummaryTest, LunarDatesOfOneHoroscopeReachIntoTheNext) {
    // Bright Pratipada stood at sunrise of 6 April 2019, the new year of the Sukladi reckoning. The Krishnadi
    // date then reads the Sun that the Sukladi search kept: that of the birth before.
    SetBirth(MomentOf({2018, 9, 20}, {12, 0, 0}));
    Summary();
    SetBirth(MomentOf({2019, 4, 6}, {12, 0, 0}));
    EXPECT_EQ(Summary().txtSLunarDate, "Shudha  /  Chaitra  /  Vikari");
    EXPECT_EQ(horoscope.forms.frm_UserDetails.txtKLunarDate, "Shudha  /  Bhadrapada  /  Vilambi");
    EXPECT_EQ(Summary().txtKLunarDate, "Shudha  /  Chaitra  /  Vikari");
}

} // namespace
} // namespace kelvaro
