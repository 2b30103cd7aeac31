#pragma once

#include "runtime/Moment.h"

#include <string>
#include <string_view>

namespace kelvaro {

class KaliyugaYears;

/// The upper-case English sign of a longitude in degrees, "ARIES" for 0 to 30, the upper bound included, to
/// "PISCES" for 330 to 360; empty outside.
std::string_view SignOfSun(double longitude);

/// The sign before the one of the longitude: "PISCES" for 0 to 30, to "AQUARIUS" for 330 to 360; empty
/// outside.
std::string_view SignBeforeSun(double longitude);

/// The lunar month of a Sun in that sign, for months that the full moon ("Purnima") or the new moon
/// ("Amavasya") marks. Both words in any case; empty for any other word.
std::string_view LunarMonthName(std::string_view kind, std::string_view sign);

/// The name of the year that the lunar month of a moment belongs to: from Bhadrapada on, the moments of
/// January to April belong to the year before. Empty for a word that is no month.
std::string LunarYearName(KaliyugaYears &years, Moment moment, std::string_view month);

} // namespace kelvaro
