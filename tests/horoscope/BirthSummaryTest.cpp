#include "horoscope/CalculateHoroscope.h"
#include "runtime/MomentText.h"
#include "tests/horoscope/HoroscopeFixture.h"

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

TEST_F(BirthSummaryTest, SampleBirth) {
    horoscope.state.birth.BirthTimeZoneName = "India Standard Time  (5.5 hrs E)";
    const UserDetailsForm &form = Summary();
    EXPECT_EQ(form.txtGName, "Velnesh");
    EXPECT_EQ(form.Txt_BC_Date, "14 / Jul / 1965");
    EXPECT_EQ(form.txtTimeOfBirth, "2 : 15  PM");
    EXPECT_EQ(form.txtist, "14/Jul/1965 02:15 PM");
    EXPECT_EQ(form.txtgmt, "14/Jul/1965 08:45 AM");
    // Four degrees west of the meridian of 82.5 degrees: sixteen minutes.
    EXPECT_EQ(form.txtlmt, "14/Jul/1965 01:59 PM");
    // From sunrise at 05:50 AM that is 489 minutes, of which 24 make a ghati.
    EXPECT_EQ(form.txtSunRise, "05:50 AM");
    EXPECT_EQ(form.txtIshtaGhati, "20:3750");
    EXPECT_EQ(form.txtLatutude, "17 20 N");
    EXPECT_EQ(form.txtLongitude, "78 30 E");
    EXPECT_EQ(form.txtTimeZone, "India Standard Time  (5.5 hrs E)");
    EXPECT_EQ(form.txtAyanamsa, "-23.22.20  (Lahiri)");
    EXPECT_EQ(form.txtGregorian, "Wednesday");
    EXPECT_EQ(form.txtVedic, "Wednesday");
    // Full moon was on 13 July 1965: the first lunar day of the dark half.
    EXPECT_EQ(form.txtTithi, "Pratipada");
    EXPECT_EQ(form.txtPaksha, "Krishna Paksha (Dark)");
    EXPECT_EQ(form.txtStar, "Uttarashada, Pada: 3");
    EXPECT_EQ(form.txtRasi, "Capricon");
    EXPECT_EQ(form.txtLagna, "Libra");
    EXPECT_EQ(form.txtAyana, "Dakshinaya");
}

TEST_F(BirthSummaryTest, HoursOfTheTwelveHourClock) {
    struct Case {
        const char *hour, *text;
    };
    for (const Case &test : {Case{"0", "12 : 15  AM"}, Case{"11", "11 : 15  AM"}, Case{"12", "12 : 15  PM"},
                             Case{"23", "11 : 15  PM"}}) {
        horoscope.state.birth.BirthHour = test.hour;
        EXPECT_EQ(Summary().txtTimeOfBirth, test.text);
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
        {77, 0, "W", 5, "W", "14/Jul/1965 02:07 PM"},             // Washington lies west of it
        {0, 30, "W", 0, "E", "14/Jul/1965 02:13 PM"},             // west of Greenwich under its time
        {179, 0, "W", 13, "E", "13/Jul/1965 01:19 PM"},           // Tonga: the same time a day apart
        {172, 0, "E", 11.5, "E", "14/Jul/1965 02:13 PM"},         // an old half-hour zone
    };
    for (const Case &test : cases) {
        HoroscopeState &state = horoscope.state;
        state.site.LonDeg = test.degrees;
        state.site.LonMin = test.minutes;
        state.site.LonEW = test.side;
        state.site.TimeDiff = test.zone;
        state.site.TimeDiffEW = test.zoneSide;
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
