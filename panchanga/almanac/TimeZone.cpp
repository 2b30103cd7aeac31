#include "panchanga/almanac/TimeZone.h"

#include "astronomy/theory/AngleReduction.h"

namespace kelvaro {

void TimeZone::findTimeZone() {
    constexpr double degreesOfHour = 15;
    TimeZone = SignedDegrees(TZoneLongitudeDegree, TZoneLongitudeMinute) / degreesOfHour;
}

} // namespace kelvaro
