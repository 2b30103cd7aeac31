#pragma once

namespace kelvaro {

/// The rising and the culminating point of the ecliptic, tropical degrees.
struct Ascendant {
    double lagna = 0;     ///< 0 to 360
    double midHeaven = 0; ///< not brought to the circle
};

/// `clockCenturies` are Julian centuries from 1900 January 0.5, `universalHours` the clock less the zone;
/// latitude in degrees, North positive; longitude in degrees, West positive. Mean obliquity and mean sidereal
/// time. A division by zero, possible at the poles, leaves an infinity or an invalid number for the caller's
/// guard to find.
Ascendant FnFindLagna(double clockCenturies, double universalHours, double latitude, double longitude);

} // namespace kelvaro
