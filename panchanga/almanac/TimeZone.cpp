#include "panchanga/almanac/TimeZone.h"

namespace kelvaro {

void TimeZone::findTimeZone() {
    constexpr double degreesOfHour = 15;
    constexpr double minutesOfDegree = 60;
    const double minutes = TZoneLongitudeMinute / minutesOfDegree;
    const double degrees =
        TZoneLongitudeDegree < 0 ? TZoneLongitudeDegree - minutes : TZoneLongitudeDegree + minutes;
    TimeZone = degrees / degreesOfHour;
}

} // namespace kelvaro
