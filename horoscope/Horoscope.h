#pragma once

#include "astronomy/ClsFindPlanetPosition.h"
#include "astronomy/clsFindSunSet.h"
#include "astronomy/clsFindSunrise.h"
#include "horoscope/HoroscopeState.h"
#include "horoscope/StatusDisplay.h"
#include "panchanga/clsTimes.h"
#include "presentation/HoroscopeForms.h"

#include <string>

namespace kelvaro {

/// The calculation objects that live as long as the program. Some of them keep a result from one use to the
/// next.
struct Calculators {
    ClsFindPlanetPosition position;
    clsFindSunrise sunrise;
    clsFindSunSet sunset;
    clsTimes times;
};

/// The one horoscope in force: what was stated, what was computed, what the views show.
struct Horoscope {
    explicit Horoscope(StatusDisplay &display) : status(display) {}

    HoroscopeState state;
    HoroscopeForms forms;
    Calculators calculators;
    std::string CurrentView; ///< name of the view that the user last chose; empty for the birth details
    StatusDisplay &status;
    bool isCalculating = false;
};

} // namespace kelvaro
