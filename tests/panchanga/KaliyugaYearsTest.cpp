#include "panchanga/calendar/LunarMonths.h"
#include "tests/panchanga/Almanac.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

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
        {0, "ARIES", "PISCES"},      {30, "ARIES", "PISCES"},
        {30.001, "TAURUS", "ARIES"}, {270, "SAGITARIUS", "SCORPIO"},
        {360, "PISCES", "AQUARIUS"}, {-0.001, "", ""},
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
