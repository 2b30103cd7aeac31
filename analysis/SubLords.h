#pragma once

#include "horoscope/record/Names.h"

#include <string>

namespace kelvaro {

// The sub lord of a place within a sign, by its long name in the language in force. `degreesInRasi` runs from
// 0 to 30; a value outside gives an empty text. A place on the limit of two bands belongs to the lower one.

/// Of the fiery signs: rasis 1, 5 and 9.
std::string SubLordTable1(const Names &names, double degreesInRasi);

/// Of the earthy signs: rasis 2, 6 and 10.
std::string SubLordTable2(const Names &names, double degreesInRasi);

/// Of the airy signs: rasis 3, 7 and 11.
std::string SubLordTable3(const Names &names, double degreesInRasi);

/// Of the watery signs: rasis 4, 8 and 12.
std::string SubLordTable4(const Names &names, double degreesInRasi);

/// The sub lord of a longitude in degrees, from the table of its sign.
std::string SubLordOf(const Names &names, double longitude);

} // namespace kelvaro
