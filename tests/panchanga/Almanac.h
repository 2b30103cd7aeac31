#pragma once

#include "panchanga/calendar/LunarCalendar.h"
#include "panchanga/calendar/SolarCalendar.h"
#include "runtime/MomentText.h"

#include <string>

namespace kelvaro {

/// A copy of the seed database for all tests that leave it as it is.
inline store::Connection &SeedConnection() {
    static store::Connection connection;
    if (!connection.IsOpen()) {
        connection.OpenCopyInMemory(KELVARO_SEED_DATABASE);
    }
    return connection;
}

/// The calendars of a program just started, at New Delhi and under Lahiri's ayanamsa.
struct Almanac {
    explicit Almanac(store::Connection &connection = SeedConnection()) : years(connection) {
        state.site.LatDeg = 28;
        state.site.LatMin = 36;
        state.site.LonDeg = 77;
        state.site.LonMin = 12;
    }

    HoroscopeState state;
    clsFindSunrise sunrise;
    clsFindSunSet sunset;
    clsTithi tithi;
    PlacePositions positions{state};
    SunTimes sunTimes{state, sunrise, sunset};
    KaliyugaYears years;
    SolarCalendar solar{sunTimes, years};
    LunarCalendar lunar{positions, sunTimes, tithi, years};

    std::string Krishnadi(const char *moment, const char *status = "TP") {
        lunar.LunarDateKrishnadi(ReadMoment(moment), status);
        return Joined(lunar.Krishnadi());
    }

    std::string Sukladi(const char *moment, const char *status = "TP") {
        lunar.LunarDateSukladi(ReadMoment(moment), status);
        return Joined(lunar.Sukladi());
    }

    static std::string Joined(const LunarDate &date) {
        return date.flag + " " + date.month + " " + date.yearName;
    }
};

} // namespace kelvaro
