#pragma once

namespace kelvaro {

/// The Sun as seen from the Earth.
struct SunPlace {
    double trueLongitude = 0;     ///< geometric, tropical, radians from 0 to the full circle
    double distance = 0;          ///< astronomical units
    double apparentLongitude = 0; ///< tropical with nutation and aberration, degrees from 0 to 360
    double nutation = 0;          ///< in longitude, degrees
};

/// Newcomb's theory with the largest perturbations. `centuries` are Julian centuries from 1900 January 0.5.
SunPlace FnFindSun(double centuries);

/// The Sun's mean anomaly, which is the Earth's, radians.
double FnFindSunMeanAnomaly(double centuries);

} // namespace kelvaro
