#pragma once

#include <cstdint>
#include <string>

namespace kelvaro {

/// The dignity of each planet in the sign where it stands: exalted, in its own sign, with a friend, neutral,
/// with an enemy or debilitated. The words are stored as they are, in upper and lower case.
class clsPlanetStrength {
public:
    // Signs, 0 for Aries to 11 for Pisces.
    std::int16_t SunHouse = 0, MoonHouse = 0, MarsHouse = 0, MercuryHouse = 0, JupiterHouse = 0,
                 VenusHouse = 0, SaturnHouse = 0, RahuHouse = 0, KethuHouse = 0;
    std::string SunStrength, MoonStrength, MarsStrength, MercuryStrength, JupiterStrength, VenusStrength,
        SaturnStrength, RahuStrength, KethuStrength;

    /// A sign outside 0 to 11 assigns nothing to its planet.
    void FindPlanetStrength();
};

} // namespace kelvaro
