#include "panchanga/calendar/LunarMonths.h"
#include "tests/panchanga/Almanac.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

const SolarDate &Found(Almanac &almanac, const char *moment) {
    EXPECT_TRUE(almanac.solar.SolarDateOf(ReadMoment(moment), almanac.site, MomentOf({2024, 1, 1})))
        << moment;
    return almanac.solar.Date();
}

// First days of the Tamil months, whose year opens with Chittirai: New Years, Thai Pongal on 15 January, and
// the firsts of Aadi, Karttikai and Panguni.
TEST(SolarCalendar, DatesOfPrintedAlmanacs) {
    const struct {
        const char *moment;
        int day;
        const char *month, *year;
        int kaliyugaYear;
    } cases[] = {
        {"14/4/2019 12:00", 1, "Chaitra", "Vikari", 5120},
        {"14/4/2023 12:00", 1, "Chaitra", "Sobhakrit", 5124},
        {"13/4/2023 12:00", 30, "Phalguna", "Subhakrit", 5123},
        {"13/4/1950 12:00", 1, "Chaitra", "Vikriti", 5051},
        {"15/1/2024 12:00", 1, "Pausha", "Sobhakrit", 5124},
        {"17/7/2019 12:00", 1, "Ashadha", "Vikari", 5120},
        {"14/3/2020 12:00", 1, "Phalguna", "Vikari", 5120},
        {"14/7/1965 14:15", 30, "Jyeshtha", "Visvavasu", 5066},
        {"1/3/2000 12:00", 18, "Magha", "Pramathi", 5100},
    };
    for (const auto &expected : cases) {
        Almanac almanac;
        const SolarDate &date = Found(almanac, expected.moment);
        EXPECT_EQ(date.day, expected.day) << expected.moment;
        EXPECT_EQ(date.month, expected.month) << expected.moment;
        EXPECT_EQ(date.yearName, expected.year) << expected.moment;
        EXPECT_EQ(date.kaliyugaYear, expected.kaliyugaYear) << expected.moment;
    }
}

TEST(SolarCalendar, TheDayBeginsAtSunrise) {
    Almanac almanac;
    const Moment sunrise = almanac.sunTimes.SunriseOf(MomentOf({2024, 4, 14}), almanac.site);
    const Moment today = MomentOf({2024, 1, 1});
    almanac.solar.SolarDateOf(sunrise, almanac.site, today);
    EXPECT_EQ(almanac.solar.Date().day, 1);
    EXPECT_EQ(almanac.solar.Date().yearName, "Krodhi");
    EXPECT_EQ(almanac.solar.Date().monthStart, sunrise);

    // The last day of the year before, whose month has 31 days or 30.
    almanac.solar.SolarDateOf(DateAdd(Interval::Minute, -1, sunrise), almanac.site, today);
    EXPECT_EQ(almanac.solar.Date().month, "Phalguna");
    EXPECT_EQ(almanac.solar.Date().yearName, "Sobhakrit");
    EXPECT_EQ(almanac.solar.Date().day, almanac.solar.Date().monthLength);
}

// An opening after sunset moves the year to the next sunrise: in 2020 it is Monday 13 April with 0.556 days
// after sunrise. In 1989 it is Thursday 13 April with 0.5369 days, 12.886 hours; as the minutes, too, are
// counted by 24, that is 12 hours and 21 minutes and still before sunset at 18:46.
TEST(SolarCalendar, YearStarts) {
    Almanac almanac;
    const struct {
        int year, day;
    } cases[] = {{1965, 13}, {1989, 13}, {2012, 13}, {2020, 14}, {2023, 14}, {2050, 14}};
    for (const auto &expected : cases) {
        const Moment start = almanac.solar.FindYearStart(expected.year, almanac.site).sunrise;
        EXPECT_EQ(start, almanac.sunTimes.SunriseOf(MomentOf({expected.year, 4, expected.day}), almanac.site))
            << expected.year;
    }
}

// In 2024 the year opens at sunrise of 14 April, 5:58, with 0.5908 of a day. The 186 days and 0.9017 of
// Asvina make it 187 days and 0.4925: 11 hours and 19 minutes, half an hour before the sunset of 18 October.
TEST(SolarCalendar, AMonthOpensByItsFractionOfADay) {
    Almanac almanac;
    const SolarDate &date = Found(almanac, "18/10/2024 12:00");
    EXPECT_EQ(date.month, "Asvina");
    EXPECT_EQ(date.day, 1);
}

// 12 to 16 April 2021 run from Monday to Friday, and the table is made to ask for a Sunday. From the start
// of 2020 the year then opens at 0.7609 days after sunrise, which is after sunset.
TEST(SolarCalendar, AYearWithoutAFittingWeekdayGoesOnFromTheStartBefore) {
    store::Connection connection;
    connection.OpenCopyInMemory(KELVARO_SEED_DATABASE);
    Almanac almanac(connection);
    connection.Execute("update KaliyugaYearDetails set DayVal = 7, YearRemain = 0 where Yearno = 35");
    almanac.solar.FindYearStart(2020, almanac.site);
    const Moment dayAfter = almanac.sunTimes.SunriseOf(MomentOf({2020, 4, 15}), almanac.site);
    EXPECT_EQ(almanac.solar.FindYearStart(2021, almanac.site).sunrise, dayAfter);
    EXPECT_EQ(almanac.solar.FindYearStart(1865, almanac.site).sunrise, dayAfter);
}

TEST(SolarCalendar, BeforeTheTableThereIsNoDate) {
    Almanac almanac;
    const Moment today = MomentOf({2024, 1, 1});
    EXPECT_FALSE(almanac.solar.SolarDateOf(MomentOf({1850, 6, 1}), almanac.site, today));
    EXPECT_EQ(almanac.solar.Date().month, "");
    EXPECT_EQ(almanac.solar.Date().kaliDays, 1790030 + 45292);

    Found(almanac, "14/4/2019 12:00");
    EXPECT_FALSE(almanac.solar.SolarDateOf(MomentOf({1866, 1, 1}), almanac.site, today));
    EXPECT_EQ(almanac.solar.Date().kaliyugaYear, 5120);
    for (const CivilDate &date : {CivilDate{1850, 6, 1}, CivilDate{1865, 12, 1}}) {
        EXPECT_FALSE(almanac.solar.SolarDateOf(MomentOf(date), almanac.site, today)) << date.year;
        EXPECT_EQ(almanac.solar.Date().month, "Chaitra") << date.year;
        EXPECT_EQ(almanac.solar.Date().kaliyugaYear, 0) << date.year;
    }
}

TEST(KaliyugaYears, NamesOfTheSixtyYears) {
    Almanac almanac;
    const struct {
        int year;
        const char *name;
    } cases[] = {
        {1850, "Sadharana"}, {1867, "Prabhava"}, {1926, "Akshaya"},  {1947, "Sarvajit"}, {1986, "Akshaya"},
        {1987, "Prabhava"},  {2046, "Akshaya"},  {2047, "Prabhava"}, {2106, "Akshaya"},
    };
    for (const auto &expected : cases) {
        EXPECT_EQ(almanac.years.KaliyugaYearName(expected.year), expected.name) << expected.year;
    }
}

TEST(KaliyugaYears, AYearWithoutARowLeavesTheValues) {
    Almanac almanac;
    almanac.years.KaliyugaYearName(2020);
    EXPECT_EQ(almanac.years.KaliyugaYearName(2107), "");
    const store::KaliyugaYear &row = almanac.years.RowOrLast(2107);
    EXPECT_EQ(row.DayVal, 7);
    EXPECT_DOUBLE_EQ(row.YearRemain, 0.7951);
    EXPECT_DOUBLE_EQ(row.YearVal, 42.7951);
}

// Elapsed years: that of 1999 to 2000 is the 5100th since 3102 BC.
TEST(KaliyugaYears, YearsAndDaysOfTheAge) {
    const struct {
        int year, kaliyugaYear;
    } cases[] = {{1850, 0},    {1865, 0},    {1866, 4967}, {1925, 5026}, {1926, 5027}, {1985, 5086},
                 {1986, 5087}, {1999, 5100}, {2045, 5146}, {2046, 5147}, {2200, 5301}};
    for (const auto &expected : cases) {
        EXPECT_EQ(KaliyugaYearOf(MomentOf({expected.year, 12, 31})), expected.kaliyugaYear) << expected.year;
    }
    EXPECT_EQ(KaliDays(MomentOf({1899, 12, 30}, {23, 0, 0})), 1790030);
    EXPECT_EQ(KaliDays(MomentOf({2000, 1, 1}, {12, 0, 0})), 1790030 + 36526);
}

TEST(KaliyugaYears, WeekdaysRunOnThroughTheWeeks) {
    EXPECT_EQ(WeekdayNameOf(1), "Sunday");
    EXPECT_EQ(WeekdayNameOf(7), "Saturday");
    EXPECT_EQ(WeekdayNameOf(8), "Sunday");
    EXPECT_EQ(WeekdayNameOf(17), "Tuesday");
    EXPECT_EQ(WeekdayNameOf(0), "");
}

TEST(LunarMonths, SignsOfTheSun) {
    const struct {
        double longitude;
        const char *sign, *before;
    } cases[] = {
        {0, "ARIES", "PISCES"},
        {30, "ARIES", "PISCES"},
        {30.001, "TAURUS", "ARIES"},
        {240, "SCORPIO", "LIBRA"},
        {270, "SAGITARIUS", "SCORPIO"},
        {330, "AQUARIUS", "CAPRICON"},
        {360, "PISCES", "AQUARIUS"},
        {-0.001, "", ""},
        {360.001, "", ""},
    };
    for (const auto &expected : cases) {
        EXPECT_EQ(SignOfSun(expected.longitude), expected.sign) << expected.longitude;
        EXPECT_EQ(SignBeforeSun(expected.longitude), expected.before) << expected.longitude;
    }
}

TEST(LunarMonths, NamesOfMonthsAndTheirYears) {
    EXPECT_EQ(LunarMonthName("purnima", "ARIES"), "Vaisakha");
    EXPECT_EQ(LunarMonthName("Amavasya", "pisces"), "Chaitra");
    EXPECT_EQ(LunarMonthName("Purnima", "LIBRA"), "Karttika");
    EXPECT_EQ(LunarMonthName("Amavasya", "LIBRA"), "Kartikka");
    EXPECT_EQ(LunarMonthName("Amavasya", "CAPRICON"), "Magha");
    EXPECT_EQ(LunarMonthName("Amavashya", "ARIES"), "");
    EXPECT_EQ(LunarMonthName("Purnima", "capricorn"), "");

    Almanac almanac;
    const Moment spring = MomentOf({2019, 4, 30});
    const Moment may = MomentOf({2019, 5, 1});
    EXPECT_EQ(LunarYearName(almanac.years, spring, "CHAITRA"), "Vikari");
    EXPECT_EQ(LunarYearName(almanac.years, spring, "Phalguna"), "Vilambi");
    EXPECT_EQ(LunarYearName(almanac.years, may, "Phalguna"), "Vikari");
    for (const char *eighth : {"Karttika", "Kartikka", "Karttikka", "Kartika"}) {
        EXPECT_EQ(LunarYearName(almanac.years, spring, eighth), "Vilambi") << eighth;
    }
    EXPECT_EQ(LunarYearName(almanac.years, spring, ""), "");
}

} // namespace
} // namespace kelvaro
