#include "tests/panchanga/Almanac.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

struct Expected {
    const char *moment;
    const char *date;
};

// Months as printed almanacs of the reckoning by the new moon have them.
TEST(LunarCalendar, SukladiDatesOfPrintedAlmanacs) {
    constexpr Expected cases[] = {
        {"1/7/2015 12:00", "Adhika Ashadha Manmatha"},
        {"15/7/2015 12:00", "Adhika Ashadha Manmatha"}, // its last day
        {"25/7/2015 12:00", "Shudha Ashadha Manmatha"},
        {"1/10/2020 12:00", "Adhika Asvina Sarvari"},
        {"8/10/2019 12:00", "Shudha Asvina Vikari"},   // Vijaya Dashami
        {"6/4/2019 09:00", "Shudha Chaitra Vikari"},   // Ugadi
        {"6/4/2019 05:00", "Shudha Phalguna Vilambi"}, // the same date before sunrise
        {"4/3/2019 20:00", "Shudha Magha Vilambi"},    // Maha Shivaratri
        {"15/11/1850 12:00", "Shudha Kartikka Sadharana"},
    };
    for (const Expected &expected : cases) {
        EXPECT_EQ(Almanac().Sukladi(expected.moment), expected.date) << expected.moment;
    }
}

// Months as printed almanacs of the reckoning by the full moon have them. The month takes the Sun's sign at
// the full moon that opens it, so these are births for which the new moon within it falls into the same sign.
TEST(LunarCalendar, KrishnadiDatesOfPrintedAlmanacs) {
    constexpr Expected cases[] = {
        {"3/9/2018 12:00", "Shudha Bhadrapada Vilambi"}, // Krishna Janmashtami
        {"7/11/2018 19:00", "Shudha Karttika Vilambi"},  // Diwali, born on the new moon
        {"4/3/2019 20:00", "Shudha Phalguna Vilambi"},   // Maha Shivaratri
        {"14/4/2019 10:00", "Shudha Chaitra Vikari"},    // Rama Navami
        {"25/7/2015 12:00", "Shudha Ashadha Manmatha"},    {"1/3/2000 12:00", "Shudha Phalguna Pramathi"},
        {"15/11/1850 12:00", "Shudha Karttika Sadharana"},
    };
    for (const Expected &expected : cases) {
        EXPECT_EQ(Almanac().Krishnadi(expected.moment), expected.date) << expected.moment;
    }
}

// The Sun entered its sign within the new moon's tithi on 15 May 1999, 15 May 2018 and 17 July 2023. As the
// sign at the beginning of the tithi counts, the leap month goes to the month before (printed: Jyeshtha of
// 1999 and 2018, Sravana of 2023), and its own days compare as texts without a decision.
TEST(LunarCalendar, ASignEnteredWithinTheTithiShiftsTheLeapMonth) {
    constexpr Expected cases[] = {
        {"25/4/1999 12:00", "Adhika Vaisakha Pramathi"}, {"1/5/2018 12:00", "Adhika Vaisakha Vilambi"},
        {"1/6/2018 12:00", " Vaisakha Vilambi"},         {"10/7/2023 12:00", "Adhika Ashadha Sobhakrit"},
        {"1/8/2023 12:00", " Ashadha Sobhakrit"},
    };
    for (const Expected &expected : cases) {
        EXPECT_EQ(Almanac().Sukladi(expected.moment), expected.date) << expected.moment;
    }
}

// Printed almanacs end the month with the new moon's day, Asvina on all these dates.
TEST(LunarCalendar, OnTheDayOfTheNewMoonTheNextMonthBegins) {
    // The tithi began at 12:23 of the 27th and ended at 09:08 of the 28th. At 11:55 PM of the 27th it is
    // counted in both directions, which makes the two of a leap month.
    EXPECT_EQ(Almanac().Sukladi("27/10/2019 19:00"), "Adhika Kartikka Vikari");
    // At sunrise of the 29th "Pratipada" is over, so that the sunrise of the 28th decides.
    EXPECT_EQ(Almanac().Sukladi("28/10/2019 07:00"), "Shudha Kartikka Vikari");
    EXPECT_EQ(Almanac().Sukladi("28/10/2019 06:00"), "Shudha Asvina Vikari");
    EXPECT_EQ(Almanac().Sukladi("28/10/2019 06:00", "DP"), "Shudha Kartikka Vikari");
    // "Pratipada" follows at the next sunrise, so that the Sun at birth decides, before sunrise too.
    EXPECT_EQ(Almanac().Sukladi("7/11/2018 05:00"), "Shudha Kartikka Vilambi");
}

TEST(LunarCalendar, TheFirstDayOfTheMonthBeginsAtSunrise) {
    Almanac almanac;
    const Moment sunrise = almanac.sunTimes.SunriseOf(MomentOf({2019, 4, 6}), almanac.site);
    EXPECT_EQ(almanac.Sukladi(sunrise), "Shudha Chaitra Vikari");
    EXPECT_EQ(almanac.Sukladi(DateAdd(Interval::Minute, -1, sunrise)), "Shudha Phalguna Vilambi");
    EXPECT_EQ(almanac.Sukladi("6/4/2019 00:01", "DP"), "Shudha Chaitra Vikari");
    EXPECT_THROW(almanac.Sukladi("10/1/100"), RuntimeError) << "the search leaves the calendar";
}

TEST(LunarCalendar, KrishnadiReadsTheSunOfTheSukladiSearchBefore) {
    Almanac almanac;
    // On a Bright "Pratipada"; a program just started reads the beginning of Aries.
    EXPECT_EQ(almanac.Krishnadi("6/4/2019 09:00"), "Shudha Vaisakha Vikari");
    EXPECT_EQ(almanac.Krishnadi("6/4/2019 05:00"), "Shudha Chaitra Vikari");
    almanac.Sukladi("8/10/2019 12:00");
    EXPECT_EQ(almanac.Krishnadi("6/4/2019 09:00"), "Shudha Asvina Vilambi");
}

// Full moons from 16 June and from 16 July 2019, both in Gemini; the "Pratipada" after the first began on 3
// July. Of two texts the one with the later day of the month is the later one.
TEST(LunarCalendar, BetweenTwoFullMoonsOfOneSignTheTextsOfTheDatesDecide) {
    Almanac almanac;
    EXPECT_EQ(almanac.Krishnadi("25/7/2019 12:00"), "Shudha Vaisakha Vikari");
    EXPECT_EQ(almanac.Krishnadi("3/8/2019 12:00"), " Vaisakha Vikari");
    EXPECT_EQ(almanac.Krishnadi("4/8/2019 12:00"), "Shudha Vaisakha Vikari");
    almanac.Sukladi("8/10/2019 12:00");
    EXPECT_EQ(almanac.Krishnadi("25/7/2019 12:00"), "Shudha Asvina Vikari");
    // The day on which the "Pratipada" begins is of the month after it. Only under an ayanamsa by which the
    // Sun changes its sign at the turn of a month can a birth on it lie between the full moons.
    Almanac custom;
    custom.ayanamsa = {"Custom", 1244, 50};
    EXPECT_EQ(custom.Krishnadi("15/7/1996 12:00"), "Shudha Vaisakha Dhatu");
}

TithiCount Counted(Almanac &almanac, const char *tithi, const char *moment) {
    TithiCount count;
    almanac.SearchAround(ReadMoment(moment)).Count(tithi, count);
    return count;
}

TEST(TithiSearch, CountsInTheSignOfTheLastOneFound) {
    Almanac almanac;
    const struct {
        const char *tithi, *birth;
        int backward, forward;
        const char *firstDate, *lastDate;
        double sun;
    } cases[] = {
        // New moons of 16 June and 16 July 2015, both in Gemini.
        {"Amavashya", "1/7/2015 00:01", 1, 1, "15/06/2015", "15/06/2015", 60.1},
        {"Amavashya", "1/7/2015 23:59", 1, 1, "15/06/2015", "15/06/2015", 60.1},
        {"Amavashya", "25/7/2015", 2, 0, "15/07/2015", "15/06/2015", 60.1},
        {"Amavashya", "1/6/2015", 1, 0, "17/05/2015", "17/05/2015", 32},
        // In force at 11:55 PM. After two of them none is searched for.
        {"Amavashya", "15/7/2015", 2, 0, "15/07/2015", "15/06/2015", 60.1},
        {"Amavashya", "27/10/2019", 1, 1, "27/10/2019", "27/10/2019", 189.4},
        // The new moon before this one began in another sign, although it ended in the same.
        {"Amavashya", "20/6/2018", 1, 0, "13/06/2018", "13/06/2018", 57.7},
        {"Purnima", "25/6/2015", 1, 0, "01/06/2015", "01/06/2015", 47},
    };
    for (const auto &expected : cases) {
        const TithiCount count = Counted(almanac, expected.tithi, expected.birth);
        EXPECT_EQ(count.backward, expected.backward) << expected.birth;
        EXPECT_EQ(count.forward, expected.forward) << expected.birth;
        EXPECT_EQ(DateText(count.dates.front()), expected.firstDate) << expected.birth;
        EXPECT_EQ(DateText(count.dates.back()), expected.lastDate) << expected.birth;
        EXPECT_NEAR(count.sun, expected.sun, 0.6) << expected.birth;
        EXPECT_EQ(count.dates.front(), DateOf(count.dates.front()));
    }
}

// "Amavashya" began on 15 June 2015 between 7:55 and 8:55 PM, two of the hours counted from 11:55 PM.
TEST(TithiSearch, CountsWholeHoursFromFiveMinutesToMidnight) {
    Almanac almanac;
    const TithiCount count = Counted(almanac, "Amavashya", "25/7/2015");
    TithiSearch sky = almanac.SearchAround(MomentOf({2015, 6, 15}));
    sky.LookAt(MomentOf({2015, 6, 15}, {19, 55, 0}));
    EXPECT_EQ(count.sun, sky.Sun());
}

// Walks of one birth share the hours that they come to. What the planet object is left with must not tell
// the difference: an unknown ayanamsa goes on from it.
TEST(TithiSearch, LeavesTheSameAyanamsaWhetherItsHoursWereSharedOrNot) {
    // The full moon after 10 July 2015 stands in another sign than the new moon: the walks end apart.
    for (const char *birth : {"1/7/2015", "10/7/2015", "27/10/2019"}) {
        Almanac shared, apart;
        TithiSearch both = shared.SearchAround(ReadMoment(birth));
        TithiCount count;
        for (const char *tithi : {"Purnima", "Amavashya", "Purnima"}) {
            both.Count(tithi, count);
            const TithiCount alone = Counted(apart, tithi, birth);
            EXPECT_EQ(count.dates, alone.dates) << birth;
            EXPECT_EQ(count.sun, alone.sun) << birth;
            EXPECT_EQ(both.Moon(), apart.position.FnFindMoonPosition()) << birth;
            EXPECT_EQ(shared.position.FnFindAyanamsa(), apart.position.FnFindAyanamsa()) << birth;
        }
    }
}

TEST(TithiSearch, LooksUnderACustomAyanamsa) {
    Almanac almanac;
    const auto sunUnder = [&](const AyanamsaSettings &ayanamsa) {
        almanac.ayanamsa = ayanamsa;
        TithiSearch sky = almanac.SearchAround(MomentOf({2000, 3, 1}, {12, 0, 0}));
        sky.LookAt(sky.BirthMoment());
        const double sun = sky.Sun();
        sky.LookAtSunAndLagna(sky.BirthMoment());
        EXPECT_EQ(sky.Sun(), sun);
        return sun;
    };
    // 1600 years at 54 seconds of arc, and two months.
    EXPECT_NEAR(sunUnder({"Sayana"}) - sunUnder({"Custom", 400, 54}), 24, 0.01);
}

} // namespace
} // namespace kelvaro
