#pragma once

#include "astronomy/ClsFindPlanetPosition.h"
#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "panchanga/clsStar.h"

#include <string_view>

namespace kelvaro {

/// " (R)" for a planet in retrograde motion, judged by its longitudes (degrees) at birth and a day later: for
/// kind 1 (Mars to Saturn) when it has not moved on, for kind 2 (the nodes, which run backward) when it has.
/// Empty otherwise and for any other kind. The passage through 0 degrees counts as a step back.
std::string_view RetroMark(double today, double nextDay, int kind);

/// Fills the table of planet positions: a row each for Lagna, Sun to Saturn, Rahu and Ketu.
///
/// The names of the record must be those of its language and its longitudes those of the birth: the driver
/// loads names and runs a position pass right before. The facade is left at the moment a day after the birth.
/// Raises what the astronomy and the avasthas raise.
void FillPlanetPositions(const HoroscopeState &state, PlanetPositionsForm &form,
                         ClsFindPlanetPosition &position, clsStar &star);

} // namespace kelvaro
