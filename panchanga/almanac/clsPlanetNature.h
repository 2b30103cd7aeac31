#pragma once

#include <cstdint>

namespace kelvaro {

/// How benefic each planet is for a Lagna: from 2, the strongest benefic, to -2, the strongest malefic.
class clsPlanetNature {
public:
    double LagnaPosition = 0; ///< sidereal degrees, 0 to below 360
    std::int32_t SunNature = 0, MoonNature = 0, MarsNature = 0, MercuryNature = 0, JupiterNature = 0,
                 VenusNature = 0, SaturnNature = 0;

    /// A position outside the zodiac assigns nothing.
    void FindPlanet();
};

} // namespace kelvaro
