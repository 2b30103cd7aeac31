#pragma once

#include "panchanga/clsStar.h"

#include <cstdint>
#include <string_view>

namespace kelvaro {

/// The star of a longitude (degrees, 0 to 360) by its place among the 27, Abijit counted with Uttarashada.
std::int16_t SortedStarNumber(clsStar &star, double longitude);

/// 1 for "Sun" to 9 for "Kethu"; 0 for any other text.
std::int16_t PlanetOrdinal(std::string_view lordName);

/// The navamsa, 1 to 9, within the sign. A place on the limit of two belongs to the lower one; above 30
/// degrees there is none, 0.
std::int16_t NavamsaInRasi(double degreesInRasi);

/// The name of an avastha, 1 to 12; empty for any other number. The same in every language.
std::string_view AvasthaName(std::int16_t number);

/// The state in which a body is at birth, out of twelve.
///
/// `lordName` is the English name of the body; longitudes are in degrees, 0 to 360; `lagnaRasi` is 1 to 12.
/// The Ishta Ghati of the birth counts to the nearest whole (half to even); the longitude of the Lagna is
/// accepted and not used. Raises OverflowError where the number behind the state does not fit 16 bits.
std::string_view SayanadiAvastha(clsStar &star, double longitude, std::string_view lordName,
                                 double lagnaLongitude, double moonLongitude, std::int16_t lagnaRasi,
                                 double ishtaGhati);

} // namespace kelvaro
