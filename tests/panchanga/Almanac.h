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
    explicit Almanac(store::Connection &connection = SeedConnection()) : table(connection) {}

    Site site{28, 36, "N", 77, 12, "E", 5.5, "E"};
    AyanamsaSettings ayanamsa{"Lahiri"};
    ClsFindPlanetPosition position;
    SunTimes sunTimes;
    store::KaliyugaYearTable table;
    KaliyugaYears years{table};
    SolarCalendar solar{sunTimes, years};
    LunarCalendar lunar{sunTimes, years};

    TithiSearch SearchAround(Moment birth) { return {position, site, ayanamsa, birth}; }

    std::string Krishnadi(const char *moment, const char *status = "TP") {
        TithiSearch search = SearchAround(ReadMoment(moment));
        lunar.LunarDateKrishnadi(search, status);
        return Joined(lunar.Krishnadi());
    }

    std::string Sukladi(const char *moment, const char *status = "TP") {
        return Sukladi(ReadMoment(moment), status);
    }
    std::string Sukladi(Moment moment, const char *status = "TP") {
        TithiSearch search = SearchAround(moment);
        lunar.LunarDateSukladi(search, status);
        return Joined(lunar.Sukladi());
    }

    static std::string Joined(const LunarDate &date) {
        return date.flag + " " + date.month + " " + date.yearName;
    }
};

} // namespace kelvaro
