#pragma once

#include <cstdint>

namespace kelvaro {

/// Division sizes of the Rasi and the Navamsa, degrees. The second is this decimal and not the third of ten.
inline constexpr double rasiSize = 30;
inline constexpr double navamsaSize = 3.33333333333333;

/// The rasi, 1 to 12, of a longitude under a division size, both in degrees, counted on from Aries through
/// the zodiac. Raises OverflowError beyond 16 bits.
std::int16_t RasiOfLongitude(double longitude, double division);

} // namespace kelvaro
