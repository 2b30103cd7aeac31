#pragma once

#include "horoscope/record/Names.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelvaro {

/// The lord of the sign in which a longitude stands, by its long name in the language in force: of the Rasi
/// sign when `kind` is "Rasi", of the Navamsa sign for any other text. `longitude` is in degrees, 0 to 360.
/// Raises OverflowError for a longitude beyond all signs.
const std::string &RasiLordOf(const Names &names, double longitude, std::string_view kind);

/// The English name of the lord of a star, 1 to 28 as clsStar numbers them; the south node is "Kethu".
/// Empty for any other number.
std::string_view StarLordOf(std::int16_t star);

/// The body of a lord by its English name ("Sun" to "Rahu", "Kethu"); nothing for any other text.
std::optional<Body> LordNamed(std::string_view englishName);

/// The long name, in the language in force, of a lord by its English name ("Sun" to "Rahu", "Kethu"). Empty
/// for any other text.
std::string LocalisedPlanetName(const Names &names, std::string_view englishName);

/// The full name of a rasi, 1 to 12, in the language in force. Raises OverflowError outside.
const std::string &RasiNameOf(const Names &names, std::int16_t rasi);

} // namespace kelvaro
