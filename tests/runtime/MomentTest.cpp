#include "runtime/Moment.h"

#include "runtime/MomentText.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace kelvaro {

// Readable failures: dates and clocks in the order in which they are written in the tables below.
void PrintTo(const CivilMoment &m, std::ostream *out) {
    *out << m.date.year << '-' << m.date.month << '-' << m.date.day << ' ' << m.clock.hour << ':'
         << m.clock.minute << ':' << m.clock.second;
}

namespace {

constexpr double second = 1.0 / 86400;

/// Serial numbers by another calendar: the day count of Python's proleptic Gregorian date type.
struct KnownMoment {
    double serial;
    CivilMoment civil;
    int weekday;
};

const KnownMoment knownMoments[] = {
    {23937.59375, {{1965, 7, 14}, {14, 15, 0}}, 4},
    {0, {{1899, 12, 30}, {}}, 7},
    {-1.25, {{1899, 12, 29}, {6, 0, 0}}, 6},
    {60, {{1900, 2, 28}, {}}, 4},
    {61, {{1900, 3, 1}, {}}, 5},
    {-36522.99998842592, {{1800, 1, 1}, {23, 59, 59}}, 4},
    {-15574.729166666666, {{1857, 5, 10}, {17, 30, 0}}, 1},
    {-657434.5, {{100, 1, 1}, {12, 0, 0}}, 6},
    {2958465.999988426, {{9999, 12, 31}, {23, 59, 59}}, 6},
};

TEST(Moment, StandsForKnownDatesAndClocks) {
    for (const KnownMoment &known : knownMoments) {
        SCOPED_TRACE(known.serial);
        EXPECT_EQ(Split(Moment(known.serial)), known.civil);
        EXPECT_NEAR(MomentOf(known.civil.date, known.civil.clock).Serial(), known.serial, 1e-9);
        EXPECT_EQ(WeekdayOf(Moment(known.serial)), known.weekday);
        EXPECT_EQ(DateOf(Moment(known.serial)), MomentOf(known.civil.date));
    }
}

TEST(Moment, RoundsToTheNearestSecondAcrossMidnight) {
    const struct {
        double serial;
        CivilMoment civil;
        int weekday;
    } cases[] = {
        {23937 + 0.9999 * second, {{1965, 7, 14}, {0, 0, 1}}, 4},
        {23937 + 0.4 * second, {{1965, 7, 14}, {}}, 4},
        {23938 - 0.0001 * second, {{1965, 7, 15}, {}}, 5},
        {-36523 + 0.0001 * second, {{1800, 1, 2}, {}}, 5},
        {-36522 - 0.0001 * second, {{1800, 1, 1}, {}}, 4},
        {-0.25, {{1899, 12, 30}, {6, 0, 0}}, 7},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.serial);
        EXPECT_EQ(Split(Moment(c.serial)), c.civil);
        EXPECT_EQ(WeekdayOf(Moment(c.serial)), c.weekday);
        EXPECT_EQ(DateOf(Moment(c.serial)), MomentOf(c.civil.date));
    }
}

TEST(Moment, ComparesOnTheTimeLine) {
    const CivilMoment rising[] = {
        {{100, 1, 1}, {}},
        {{1800, 1, 1}, {0, 0, 1}},
        {{1800, 1, 1}, {23, 59, 59}},
        {{1899, 12, 29}, {1, 0, 0}},
        {{1899, 12, 29}, {23, 0, 0}},
        {{1899, 12, 30}, {0, 0, 0}},
        {{1899, 12, 30}, {23, 0, 0}},
        {{2100, 1, 1}, {}},
    };
    for (std::size_t i = 1; i < std::size(rising); ++i) {
        const Moment before = MomentOf(rising[i - 1].date, rising[i - 1].clock);
        const Moment after = MomentOf(rising[i].date, rising[i].clock);
        EXPECT_LT(before, after) << i;
        EXPECT_LT(before.Timeline(), after.Timeline()) << i;
        EXPECT_NEAR(Moment::AtTimeline(after.Timeline()).Serial(), after.Serial(), 1e-9) << i;
    }
    EXPECT_DOUBLE_EQ(Moment(-1.25).Timeline(), -0.75);
    EXPECT_DOUBLE_EQ(Moment::AtTimeline(-0.75).Serial(), -1.25);
    EXPECT_EQ(Moment::AtTimeline(-1e-17), Moment(0)) << "a hair before the origin is the origin";
}

struct AddCase {
    Interval interval;
    std::int32_t count;
    CivilMoment from;
    CivilMoment to;
};

TEST(Moment, AddsIntervals) {
    const AddCase cases[] = {
        // The last day of a shorter month stands in for a day that the month lacks.
        {Interval::Month, 1, {{2000, 1, 31}, {9, 5, 7}}, {{2000, 2, 29}, {9, 5, 7}}},
        {Interval::Month, 1, {{1900, 1, 31}, {}}, {{1900, 2, 28}, {}}},
        {Interval::Month, -1, {{1856, 3, 31}, {20, 0, 0}}, {{1856, 2, 29}, {20, 0, 0}}},
        {Interval::Month, -13, {{1901, 1, 30}, {1, 2, 3}}, {{1899, 12, 30}, {1, 2, 3}}},
        {Interval::Year, 1, {{2000, 2, 29}, {6, 0, 0}}, {{2001, 2, 28}, {6, 0, 0}}},
        // Across the origin, where the clock has to go on counting forward.
        {Interval::Day, -1, {{1899, 12, 30}, {18, 0, 0}}, {{1899, 12, 29}, {18, 0, 0}}},
        {Interval::Day, 40000, {{1800, 1, 1}, {23, 59, 59}}, {{1909, 7, 9}, {23, 59, 59}}},
        {Interval::Hour, -1, {{1899, 12, 30}, {0, 30, 0}}, {{1899, 12, 29}, {23, 30, 0}}},
        {Interval::Hour, 25, {{1899, 12, 29}, {23, 30, 0}}, {{1899, 12, 31}, {0, 30, 0}}},
        {Interval::Minute, -61, {{1850, 1, 1}, {1, 0, 0}}, {{1849, 12, 31}, {23, 59, 0}}},
        {Interval::Second, 1, {{1899, 12, 29}, {23, 59, 59}}, {{1899, 12, 30}, {}}},
        {Interval::Second, 2147483647, {{1900, 1, 1}, {}}, {{1968, 1, 20}, {3, 14, 7}}},
    };
    for (const AddCase &c : cases) {
        EXPECT_EQ(Split(DateAdd(c.interval, c.count, MomentOf(c.from.date, c.from.clock))), c.to);
    }
}

TEST(Moment, AddsFractionsOfDaysAlongTheTimeLine) {
    const struct {
        double from, days, to;
    } cases[] = {
        {10.25, 1, 11.25},    {10.25, -0.5, 9.75}, {-10.25, 1, -9.25},      {-1.25, 1, 0.25},
        {-1.75, 0.5, 0.25},   {0.25, -0.5, -1.75}, {0.25, -1, -1.25},       {-2.75, -0.5, -2.25},
        {-2.25, -0.5, -3.75}, {-3.75, 0.25, -2},   {-36522.5, 0, -36522.5},
    };
    for (const auto &c : cases) {
        EXPECT_DOUBLE_EQ(PlusDays(Moment(c.from), c.days).Serial(), c.to) << c.from << " and " << c.days;
    }
    // An hour after 23:00 may fall a rounding error short of midnight, and midnight it has to be.
    const Moment late = MomentOf({1850, 9, 19}, {23, 0, 0});
    for (int day = 0; day < 1000; ++day) {
        const Moment next = DateAdd(Interval::Day, day + 1, MomentOf({1850, 9, 19}));
        ASSERT_EQ(Split(PlusDays(DateAdd(Interval::Day, day, late), 1.0 / 24)), Split(next)) << day;
    }
}

TEST(Moment, CountsBoundariesCrossed) {
    const CivilMoment lastSecond{{1999, 12, 31}, {23, 59, 59}};
    const CivilMoment newYear{{2000, 1, 1}, {}};
    const CivilMoment beforeOrigin{{1899, 12, 29}, {23, 0, 0}};
    const CivilMoment afterOrigin{{1899, 12, 30}, {1, 0, 0}};
    const struct {
        Interval interval;
        CivilMoment from, to;
        std::int32_t count;
    } cases[] = {
        {Interval::Year, lastSecond, newYear, 1},
        {Interval::Day, lastSecond, newYear, 1},
        {Interval::Second, lastSecond, newYear, 1},
        {Interval::Day, newYear, {{2000, 1, 1}, {23, 59, 59}}, 0},
        {Interval::Year, newYear, {{2000, 12, 31}, {23, 59, 59}}, 0},
        {Interval::Day, beforeOrigin, afterOrigin, 1},
        {Interval::Day, {{1899, 12, 29}, {1, 0, 0}}, beforeOrigin, 0},
        {Interval::Hour, beforeOrigin, afterOrigin, 2},
        {Interval::Minute, beforeOrigin, {{1899, 12, 29}, {22, 59, 59}}, -1},
        {Interval::Month, {{1857, 5, 10}, {}}, {{1849, 3, 31}, {}}, -98},
        {Interval::Day, {{1800, 1, 1}, {12, 0, 0}}, {{1900, 1, 1}, {}}, 36524},
    };
    for (const auto &c : cases) {
        const Moment from = MomentOf(c.from.date, c.from.clock);
        const Moment to = MomentOf(c.to.date, c.to.clock);
        EXPECT_EQ(DateDiff(c.interval, from, to), c.count);
        EXPECT_EQ(DateDiff(c.interval, to, from), -c.count);
    }
    // A hair before midnight is midnight.
    EXPECT_EQ(DateDiff(Interval::Day, Moment(0.999999999), Moment(1)), 0);
    EXPECT_EQ(DateDiff(Interval::Day, Moment(-36522.999999999), Moment(-36521)), 0);
    EXPECT_THROW(DateDiff(Interval::Second, MomentOf({1900, 1, 1}), MomentOf({2000, 1, 1})), OverflowError);
}

TEST(Moment, RefusesWhatIsNoDate) {
    const CivilMoment wrong[] = {
        {{2001, 2, 29}, {}},        {{1900, 2, 29}, {}},        {{2000, 13, 1}, {}},
        {{2000, 0, 1}, {}},         {{2000, 257, 1}, {}},       {{2000, 1, 257}, {}},
        {{2000, 1, 0}, {}},         {{99, 12, 31}, {}},         {{10000, 1, 1}, {}},
        {{65636, 1, 1}, {}},        {{2000, 1, 1}, {24, 0, 0}}, {{2000, 1, 1}, {0, 60, 0}},
        {{2000, 1, 1}, {0, 0, 60}}, {{2000, 1, 1}, {-1, 0, 0}}, {{2000, 4, -255}, {}},
    };
    for (const CivilMoment &w : wrong) {
        EXPECT_THROW(MomentOf(w.date, w.clock), ConversionError) << testing::PrintToString(w);
    }
}

TEST(Moment, EndsWithTheYears100And9999) {
    const Moment first = MomentOf({100, 1, 1});
    const Moment last = MomentOf({9999, 12, 31}, {23, 59, 59});
    EXPECT_THROW(DateAdd(Interval::Second, -1, first), OverflowError);
    EXPECT_THROW(DateAdd(Interval::Month, -1, first), OverflowError);
    EXPECT_THROW(DateAdd(Interval::Year, -2147483647, first), OverflowError);
    EXPECT_THROW(DateAdd(Interval::Second, 1, last), OverflowError);
    EXPECT_THROW(DateAdd(Interval::Day, 1, last), OverflowError);
    EXPECT_THROW(DateAdd(Interval::Year, 1, last), OverflowError);
    EXPECT_THROW(PlusDays(first, -0.25), OverflowError);
    EXPECT_THROW(PlusDays(MomentOf({9999, 12, 31}, {18, 0, 0}), 0.25), OverflowError)
        << "a whole day's carry";
    EXPECT_THROW(PlusDays(first, std::numeric_limits<double>::quiet_NaN()), OverflowError);
    for (const double serial :
         {-657435.0, 2958466.0, 2958465.9999999, 1e300, -1e300, std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(Split(Moment(serial)), OverflowError) << serial;
    }
}

TEST(MomentText, ReadsDatesAndClocks) {
    const struct {
        const char *text;
        CivilMoment civil;
    } cases[] = {
        {"14/07/1965", {{1965, 7, 14}, {}}},
        {"14/7/1965 14:15: 00", {{1965, 7, 14}, {14, 15, 0}}},
        {"14/Jul/1965 02:15 PM", {{1965, 7, 14}, {14, 15, 0}}},
        {"14/JULY/1965 2:15:30 pm", {{1965, 7, 14}, {14, 15, 30}}},
        {"  14 / july / 1965   14 : 15 ", {{1965, 7, 14}, {14, 15, 0}}},
        {"14-Jul-1965", {{1965, 7, 14}, {}}},
        {"1/May/1857 12:00 AM", {{1857, 5, 1}, {}}},
        {"1/may/1857 12:00 PM", {{1857, 5, 1}, {12, 0, 0}}},
        {"1/may/1857 11:59 PM", {{1857, 5, 1}, {23, 59, 0}}},
        {"31/December/1800 23:59:59", {{1800, 12, 31}, {23, 59, 59}}},
        {"05/03/3000 14:15 PM", {{3000, 3, 5}, {14, 15, 0}}},
        {"05/03/2000", {{2000, 3, 5}, {}}}, // the day comes first
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Split(ReadMoment(c.text)), c.civil);
    }
}

TEST(MomentText, RefusesOtherTexts) {
    // clang-format off
    const char *const wrong[] = {
        "", " ", "14", "14/07", "14/07/", "/07/1965", "14/07-1965", "14/Juli/1965", "07/14/1965",
        "31/04/1965", "29/02/1900", "14/13/1965", "14/0/1965", "-14/07/1965", "270/01/2000",
        "4294967297/01/2000", "14/07/65", "14/07/10000", "14/07/1965 24:00", "14/07/1965 14:60",
        "14/07/1965 14:15:60", "14/07/1965 14", "14/07/1965 14:", "14/07/1965 :15", "14/07/1965 14:15:",
        "14/07/1965 00:15 PM", "14/07/1965 02:15 XM", "14/07/1965 02:15 PM PM", "14/07/1965 14:15:00:00",
        "14/07/1965 14.15", "the 14th of July",
    };
    // clang-format on
    for (const char *text : wrong) {
        EXPECT_THROW(ReadMoment(text), ConversionError) << text;
    }
    try {
        ReadMoment("14th of July");
        FAIL() << "no date was read from words";
    } catch (const ConversionError &error) {
        EXPECT_NE(std::string(error.what()).find("14th of July"), std::string::npos) << error.what();
    }
}

TEST(MomentText, ReadsMonths) {
    const struct {
        const char *text;
        int month;
    } cases[] = {{"1", 1},   {"07", 7},        {"12", 12}, {"jan", 1},
                 {"MAY", 5}, {"September", 9}, {"Sep", 9}, {"december", 12}};
    for (const auto &c : cases) {
        EXPECT_EQ(ReadMonth(c.text), c.month) << c.text;
    }
    for (const char *text : {"", "0", "13", "-1", "Sept", "Ju", "Januarys", "1.0"}) {
        EXPECT_THROW(ReadMonth(text), ConversionError) << text;
    }
}

TEST(MomentText, Writes) {
    const struct {
        CivilMoment civil;
        const char *moment, *monthName, *timing;
        bool beforeNoon;
    } cases[] = {
        {{{1965, 7, 14}, {14, 15, 0}}, "14/07/1965 02:15 PM", "14/Jul/1965 02:15 PM", "14:15:00", false},
        {{{1857, 5, 1}, {0, 0, 0}}, "01/05/1857 12:00 AM", "01/May/1857 12:00 AM", "00:00:00", true},
        {{{2000, 2, 29}, {12, 0, 59}}, "29/02/2000 12:00 PM", "29/Feb/2000 12:00 PM", "12:00:59", false},
        {{{1899, 12, 29}, {11, 59, 59}}, "29/12/1899 11:59 AM", "29/Dec/1899 11:59 AM", "11:59:59", true},
        {{{850, 1, 2}, {23, 5, 6}}, "02/01/0850 11:05 PM", "02/Jan/0850 11:05 PM", "23:05:06", false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.moment);
        const Moment moment = MomentOf(c.civil.date, c.civil.clock);
        EXPECT_EQ(MomentText(moment), c.moment);
        EXPECT_EQ(MonthNameMomentText(moment), c.monthName);
        EXPECT_EQ(TimingText(moment), c.timing);
        EXPECT_EQ(IsBeforeNoon(moment), c.beforeNoon);
        EXPECT_EQ(Split(ReadMoment(c.monthName)).date, c.civil.date);
    }
    const Moment nearlyMidnight(-36522.9999999999);
    EXPECT_EQ(MomentText(nearlyMidnight), "02/01/1800 12:00 AM");
    EXPECT_TRUE(IsBeforeNoon(nearlyMidnight));
}

TEST(MomentText, NamesWeekdays) {
    EXPECT_EQ(WeekdayName(WeekdayOf(MomentOf({1947, 8, 15}))), "Friday");
    EXPECT_EQ(WeekdayName(WeekdayOf(MomentOf({1857, 5, 10}))), "Sunday");
    EXPECT_EQ(WeekdayName(WeekdayOf(MomentOf({2000, 1, 1}))), "Saturday");
    EXPECT_THROW(WeekdayName(0), ConversionError);
    EXPECT_THROW(WeekdayName(8), ConversionError);
}

} // namespace
} // namespace kelvaro
