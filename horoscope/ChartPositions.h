#pragma once

#include "horoscope/record/HoroscopeState.h"

namespace kelvaro {

struct Calculators;

/// One position pass: from a birth to its longitudes, rasi numbers under the division size (degrees),
/// ayanamsa, the limits of its day, and Gulika and Maandi with their rise moments. Of the preferences only
/// those of the ayanamsa count. Raises ConversionError for birth texts that are no date, and what the
/// astronomy raises.
PositionPass FindPositions(const BirthDetails &birth, const Site &site, const Preferences &preferences,
                           double division, Calculators &calculators);

} // namespace kelvaro
