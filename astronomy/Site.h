#pragma once

#include <string>

namespace kelvaro {

/// A place on the Earth and the offset of its clock, as magnitudes with the letters of their sides.
struct Site {
    double LatDeg = 0;
    double LatMin = 0;
    std::string LatNS = "N"; ///< "N" or "S"
    double LonDeg = 0;
    double LonMin = 0;
    std::string LonEW = "E"; ///< "E" or "W"
    double TimeDiff = 0;     ///< hours from Greenwich, its direction in TimeDiffEW
    std::string TimeDiffEW = "E";

    friend bool operator==(const Site &, const Site &) = default;
};

} // namespace kelvaro
