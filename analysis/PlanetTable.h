#pragma once

#include "astronomy/ClsFindPlanetPosition.h"
#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/Names.h"
#include "panchanga/clsStar.h"

#include <array>
#include <string_view>

namespace kelvaro {

/// " (R)" for a planet in retrograde motion, judged by its longitudes (degrees) at birth and a day later: for
/// kind 1 (Mars to Saturn) when it has not moved on, for kind 2 (the nodes, which run backward) when it has.
/// Empty otherwise and for any other kind. The passage through 0 degrees counts as a step back.
std::string_view RetroMark(double today, double nextDay, int kind);

/// Longitudes of Lagna to Ketu, degrees; 0 for the first three, which never move backward.
using RetroLongitudes = std::array<double, 10>;

/// The longitudes of the moment that the facade has been set to.
RetroLongitudes RetroLongitudesOf(ClsFindPlanetPosition &position);

/// The table of planet positions: a row each for Lagna, Sun to Saturn, Rahu and Ketu, and the work area of
/// the karaka ranking. `nextDay` is for the moment a day after that of the positions. Raises what the
/// avasthas raise.
PlanetPositionsForm PlanetTable(const Positions &positions, const RetroLongitudes &nextDay,
                                const Names &names, double ishtaGhati, clsStar &star);

} // namespace kelvaro
