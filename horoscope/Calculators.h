#pragma once

#include "astronomy/ClsFindPlanetPosition.h"
#include "panchanga/calendar/LunarCalendar.h"
#include "panchanga/calendar/SolarCalendar.h"
#include "panchanga/clsRasi.h"
#include "panchanga/clsStar.h"
#include "panchanga/clsTithi.h"
#include "panchanga/clsYoga.h"
#include "panchanga/day/clsTimes.h"
#include "store/tables/VargaTable.h"

namespace kelvaro {

/// The calculation objects that live as long as the program. Some of them keep a result from one use to the
/// next.
struct Calculators {
    /// The connection must outlive the object.
    explicit Calculators(store::Connection &connection) : yearTable(connection), vargaTable(connection) {}

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
    store::VargaTable vargaTable;
};

} // namespace kelvaro
