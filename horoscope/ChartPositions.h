#pragma once

#include <cstdint>

namespace kelvaro {

struct Horoscope;

/// Division sizes of the Rasi and the Navamsa pass, degrees. The second is this decimal and not the third of
/// ten.
inline constexpr double rasiSize = 30;
inline constexpr double navamsaSize = 3.33333333333333;

/// The rasi, 1 to 12, of a longitude under a division size, both in degrees, counted on from Aries through
/// the zodiac. Raises OverflowError beyond 16 bits.
std::int16_t RasiOfLongitude(double longitude, double division);

/// One position pass: from the birth details of the record to its longitudes, rasi numbers under the division
/// size, ayanamsa, the limits of the day, and Gulika and Maandi with their rise moments. Raises
/// ConversionError for birth texts that are no date, and what the astronomy raises.
void ComputeChartPositions(Horoscope &horoscope, double division);

} // namespace kelvaro
