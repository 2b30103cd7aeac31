#include "runtime/MomentText.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

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
