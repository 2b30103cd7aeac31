#pragma once

#include <array>
#include <cstddef>

namespace kelvaro {

enum class Planet { Mercury, Venus, Mars, Jupiter, Saturn };

/// The mean orbit of a planet at a time. Angles are degrees of the equinox of date.
struct OrbitalElements {
    double meanLongitude = 0; ///< 0 to 360
    double dailyMotion = 0;   ///< degrees a day
    double perihelion = 0;
    double eccentricity = 0;
    double inclination = 0;
    double node = 0;
    double semiMajorAxis = 0; ///< astronomical units
};

/// Le Verrier's elements, referred to 1900 January 0.5. `centuries` are Julian centuries from that epoch.
OrbitalElements FnLoadElements(Planet planet, double centuries);

/// The elements of the five planets at one time.
class PlanetElements {
public:
    PlanetElements() = default;
    explicit PlanetElements(double centuries);

    const OrbitalElements &Of(Planet planet) const { return rows_.at(static_cast<std::size_t>(planet)); }

private:
    std::array<OrbitalElements, 5> rows_;
};

} // namespace kelvaro
