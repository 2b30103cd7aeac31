#pragma once

#include "horoscope/record/HoroscopeState.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro {

/// The lord of the sign in which a longitude stands, by its long name in the language in force: of the Rasi
/// sign when `kind` is "Rasi", of the Navamsa sign for any other text. `longitude` is in degrees, 0 to 360.
/// Raises OverflowError for a longitude beyond all signs.
std::string RasiLordOf(const HoroscopeState &state, double longitude, std::string_view kind);

/// The English name of the lord of a star, 1 to 28 as clsStar numbers them; the south node is "Kethu".
/// Empty for any other number.
std::string_view StarLordOf(std::int16_t star);

/// The long name, in the language in force, of a lord by its English name ("Sun" to "Rahu", "Kethu"). Empty
/// for any other text.
std::string LocalisedPlanetName(const HoroscopeState &state, std::string_view englishName);

/// The full name of a rasi, 1 to 12, in the language in force. Raises OverflowError outside.
const std::string &RasiNameOf(const HoroscopeState &state, std::int16_t rasi);

} // namespace kelvaro
