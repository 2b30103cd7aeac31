#pragma once

#include "astronomy/ClsFindPlanetPosition.h"
#include "horoscope/StatusDisplay.h"
#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "panchanga/calendar/LunarCalendar.h"
#include "panchanga/calendar/SolarCalendar.h"
#include "panchanga/clsRasi.h"
#include "panchanga/clsStar.h"
#include "panchanga/clsTithi.h"
#include "panchanga/clsYoga.h"
#include "panchanga/day/clsTimes.h"
#include "store/database/Connection.h"

#include <string>

namespace kelvaro {

/// The calculation objects that live as long as the program. Some of them keep a result from one use to the
/// next.
struct Calculators {
    /// The connection must outlive the object.
    explicit Calculators(store::Connection &connection) : yearTable(connection) {}

    ClsFindPlanetPosition position;
    SunTimes sunTimes;
    clsTimes times;
    clsRasi rasi;
    clsStar star;
    clsTithi tithi;
    clsYoga yoga;
    /// That of the calendars, apart from the driver's, which holds the positions of the birth for its
    /// readers.
    ClsFindPlanetPosition calendarPosition;
    store::KaliyugaYearTable yearTable;
    KaliyugaYears years{yearTable};
    SolarCalendar solarCalendar{sunTimes, years};
    LunarCalendar lunarCalendar{sunTimes, years};
};

/// The one horoscope in force: what was stated, what was computed, what the views show.
struct Horoscope {
    /// Both must outlive the object.
    Horoscope(store::Connection &opened, StatusDisplay &display)
        : calculators(opened), connection(opened), status(display) {}
    Horoscope(const Horoscope &) = delete;
    Horoscope &operator=(const Horoscope &) = delete;
    ~Horoscope() = default;

    HoroscopeState state;
    HoroscopeForms forms;
    Calculators calculators;
    std::string CurrentView;      ///< name of the view that the user last chose; empty for the birth details
    std::int32_t chartNumber = 0; ///< of the saved chart in force; 0 for one that is not saved
    store::Connection &connection;
    StatusDisplay &status;
    bool isCalculating = false;
};

} // namespace kelvaro
