#include "astronomy/clsFindSunrise.h"
#include "runtime/RuntimeError.h"
#include "tests/astronomy/Birth.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace kelvaro {
namespace {

struct Zone {
    double hours;
    const char *side;
};

Moment SunriseAt(const BirthPlace &p, Zone zone, const CivilDate &date, std::int16_t daylight = 0) {
    clsFindSunrise finder;
    return finder.FnFindSunrise(MomentOf(date, {17, 30, 0}), p.latSide, p.latDeg, p.latMin, p.lonSide,
                                p.lonDeg, p.lonMin, daylight, zone.hours, zone.side);
}

Moment SunsetAt(clsFindSunSet &finder, const BirthPlace &p, Zone zone, const CivilDate &date,
                std::int16_t daylight = 0) {
    return finder.FnFindSunset(MomentOf(date, {17, 30, 0}), p.latSide, p.latDeg, p.latMin, p.lonSide,
                               p.lonDeg, p.lonMin, daylight, zone.hours, zone.side);
}

Moment SunsetAt(const BirthPlace &p, Zone zone, const CivilDate &date, std::int16_t daylight = 0) {
    clsFindSunSet finder;
    return SunsetAt(finder, p, zone, date, daylight);
}

/// The event on its date, with no seconds, at most so many minutes from the clock time.
void ExpectEvent(Moment event, const CivilDate &date, CivilClock clock, int minutes) {
    const CivilMoment found = Split(event);
    EXPECT_EQ(found.date, date);
    EXPECT_EQ(found.clock.second, 0);
    const int apart = (found.clock.hour - clock.hour) * 60 + found.clock.minute - clock.minute;
    EXPECT_LE(std::abs(apart), minutes)
        << found.clock.hour << ':' << found.clock.minute << " for " << clock.hour << ':' << clock.minute;
}

const BirthPlace reykjavik{64, 8, "N", 21, 56, "W"};
const BirthPlace tromso{69, 39, "N", 18, 57, "E"};

/// PyEphem and the Swiss Ephemeris, which agree to the second: the Sun's centre 50 minutes of arc below the
/// horizon, clock times at the place to the nearest minute.
struct Day {
    BirthPlace place;
    Zone zone;
    CivilDate date;
    CivilClock sunrise, sunset;
};

const Day days[] = {
    {{13, 5, "N", 80, 17, "E"}, {5.5, "E"}, {1965, 7, 14}, {5, 50}, {18, 39}}, // Chennai
    {{28, 40, "N", 77, 13, "E"}, {5.5, "E"}, {1947, 8, 15}, {5, 50}, {19, 1}}, // Delhi
    {{51, 30, "N", 0, 10, "W"}, {0, "E"}, {1801, 6, 21}, {3, 42}, {20, 21}},   // London
    {{51, 30, "N", 0, 10, "W"}, {0, "W"}, {2000, 12, 21}, {8, 4}, {15, 54}},
    {{40, 43, "N", 74, 0, "W"}, {5, "W"}, {1899, 12, 29}, {7, 20}, {16, 37}},  // New York
    {{33, 52, "S", 151, 13, "E"}, {10, "E"}, {1901, 1, 1}, {4, 47}, {19, 10}}, // Sydney
    {{34, 36, "S", 58, 23, "W"}, {3, "W"}, {1880, 9, 23}, {6, 41}, {18, 51}},  // Buenos Aires
    {{1, 17, "S", 36, 49, "E"}, {3, "E"}, {1963, 12, 12}, {6, 20}, {18, 32}},  // Nairobi
    {{61, 13, "N", 149, 54, "W"}, {9, "W"}, {1964, 3, 27}, {6, 38}, {19, 34}}, // Anchorage
    {{18, 8, "S", 178, 25, "E"}, {12, "E"}, {1970, 10, 10}, {5, 42}, {18, 6}}, // Suva, by the date line
    {{54, 48, "S", 68, 18, "W"}, {3, "W"}, {1884, 12, 21}, {4, 52}, {22, 12}}, // Ushuaia
    {{54, 48, "S", 68, 18, "W"}, {3, "W"}, {2050, 6, 21}, {9, 59}, {17, 11}},
    {reykjavik, {0, "E"}, {2011, 12, 1}, {10, 45}, {15, 48}},
    {reykjavik, {0, "E"}, {1944, 6, 17}, {2, 56}, {0, 1}}, // sets after midnight
};

TEST(Sunrise, AgreesWithTheEphemerides) {
    for (const Day &day : days) {
        SCOPED_TRACE(testing::Message() << day.place.latDeg << day.place.latSide << ' ' << day.date.year);
        // One minute for the rounding to whole minutes and the low precision of the solar theory.
        ExpectEvent(SunriseAt(day.place, day.zone, day.date), day.date, day.sunrise, 1);
        ExpectEvent(SunsetAt(day.place, day.zone, day.date), day.date, day.sunset, 1);
    }
}

TEST(Sunrise, TakesNoNoticeOfDaylightSaving) {
    for (const Day &day : {days[0], days[5]}) {
        EXPECT_EQ(SunriseAt(day.place, day.zone, day.date, 0), SunriseAt(day.place, day.zone, day.date, 1));
        EXPECT_EQ(SunsetAt(day.place, day.zone, day.date, 0), SunsetAt(day.place, day.zone, day.date, 1));
    }
}

TEST(Sunrise, FoldsTheClockHour24ToTheSameDate) {
    // 23:59:38 by the ephemerides, 24:00 to the nearest minute.
    ExpectEvent(SunsetAt(reykjavik, {0, "E"}, {1997, 6, 15}), {1997, 6, 15}, {0, 0}, 0);
}

TEST(Sunrise, LeavesAMissingSunsetAsItWas) {
    clsFindSunSet finder;
    const CivilDate without{1995, 6, 16}; // sunsets at 23:59 of the day before and at 0:01 of the day after
    EXPECT_EQ(SunsetAt(finder, reykjavik, {0, "E"}, without), Moment());
    const Moment earlier = SunsetAt(finder, reykjavik, {0, "E"}, {1995, 3, 1});
    EXPECT_EQ(SunsetAt(finder, reykjavik, {0, "E"}, without), earlier);
    // Dates asked for again are remembered, with and without a sunset.
    const Moment later = SunsetAt(finder, reykjavik, {0, "E"}, {1995, 4, 1});
    EXPECT_EQ(SunsetAt(finder, reykjavik, {0, "E"}, without), later);
    EXPECT_EQ(SunsetAt(finder, reykjavik, {0, "E"}, {1995, 3, 1}), earlier);
    EXPECT_NE(SunsetAt(finder, tromso, {1, "E"}, {1995, 3, 1}), earlier);
    ExpectEvent(SunriseAt(reykjavik, {0, "E"}, without), without, {2, 57}, 1);
}

TEST(Sunrise, StampsTheNextRiseOnADateWithoutOne) {
    // In the polar night: the Sun comes back on 2001 January 15 at 11:28, and no sunset is met on the way.
    ExpectEvent(SunriseAt(tromso, {1, "E"}, {2000, 12, 21}), {2000, 12, 21}, {11, 28}, 2);
    EXPECT_EQ(SunsetAt(tromso, {1, "E"}, {2000, 12, 21}), Moment());
    // Under the midnight Sun: it sets on July 25 at 23:28 and rises again on July 26 at 0:14.
    ExpectEvent(SunriseAt(tromso, {1, "E"}, {2000, 6, 21}), {2000, 6, 21}, {0, 14}, 2);
    ExpectEvent(SunsetAt(tromso, {1, "E"}, {2000, 6, 21}), {2000, 6, 21}, {23, 28}, 2);
}

TEST(Sunrise, PassesOverADayShorterThanItsSteps) {
    // On the first three days after the polar night rise and set both fall between 12 and 14 o'clock of this
    // zone, into one step, where neither counts. The rise found is that of January 18.
    ExpectEvent(SunriseAt(tromso, {2, "E"}, {2001, 1, 15}), {2001, 1, 15}, {11, 52}, 2);
}

TEST(Sunrise, AlwaysEnds) {
    for (const double latitude : {66.5, 80.0, 89.0, 89.99, 90.0}) {
        for (const char *side : {"N", "S"}) {
            for (int month = 1; month <= 12; ++month) {
                const CivilDate date{1890 + month, month, 15};
                try {
                    EXPECT_EQ(Split(SunriseAt({latitude, 0, side, 10, 0, "E"}, {1, "E"}, date)).date, date);
                } catch (const ArithmeticError &) {
                    EXPECT_GT(latitude, 89) << "only the pole may have no sunrise";
                }
            }
        }
    }
    for (const double wrong :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        EXPECT_THROW(SunriseAt({wrong, 0, "N", 10, 0, "E"}, {1, "E"}, {2000, 1, 1}), ArithmeticError);
        EXPECT_THROW(SunriseAt({10, 0, "N", wrong, 0, "E"}, {1, "E"}, {2000, 1, 1}), ArithmeticError);
        EXPECT_THROW(SunriseAt({10, 0, "N", 10, 0, "E"}, {wrong, "E"}, {2000, 1, 1}), ArithmeticError);
    }
}

TEST(Sunrise, HasHemisphereLettersOfItsOwn) {
    // A negative value passes as it stands, a value of 0 degrees has no side, and any letter but "E" is a
    // Western zone.
    const CivilDate date{2000, 12, 21};
    const Zone west{5, "W"};
    EXPECT_EQ(SunriseAt({-33, 0, "S", -74, 0, "W"}, west, date),
              SunriseAt({33, 0, "S", 74, 0, "W"}, west, date));
    EXPECT_EQ(SunriseAt({-33, 0, "N", -74, 0, "E"}, west, date),
              SunriseAt({33, 0, "S", 74, 0, "W"}, west, date));
    EXPECT_EQ(SunriseAt({33, 0, "S", 74, 0, "W"}, {5, ""}, date),
              SunriseAt({33, 0, "S", 74, 0, "W"}, west, date));
    EXPECT_EQ(SunriseAt({0, 59, "S", 0, 59, "W"}, {0, "E"}, date),
              SunriseAt({0, 59, "N", 0, 59, "E"}, {0, "E"}, date));
}

} // namespace
} // namespace kelvaro
