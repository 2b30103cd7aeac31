#include "panchanga/almanac/clsPlanetNature.h"

#include <array>
#include <cstddef>

namespace kelvaro {

namespace {

constexpr double rasiWidth = 30;

/// A row for each rasi of the Lagna: Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn.
constexpr std::array<std::array<std::int32_t, 7>, 12> natures{{
    {1, 1, 1, -1, 1, 0, -1},
    {1, 0, -1, 1, -2, 1, 1},
    {-1, 0, -2, 2, 0, 1, 1},
    {0, 1, 1, -1, 1, 0, -2},
    {1, -1, 1, 0, 1, 0, -2},
    {-1, 0, -2, 2, 0, 1, 1},
    {-1, 1, -1, 1, -1, 1, 1},
    {1, 1, 1, -2, 1, 0, -1},
    {1, -1, 1, 0, 2, -1, -1},
    {-2, 0, -1, 1, -1, 1, 1},
    {-1, -1, 0, 1, 0, 1, 1},
    {-1, 1, 1, 0, 2, -2, -2},
}};

} // namespace

void clsPlanetNature::FindPlanet() {
    const double rasi = LagnaPosition / rasiWidth;
    if (!(rasi >= 0 && rasi < static_cast<double>(natures.size()))) {
        return;
    }
    const auto &row = natures.at(static_cast<std::size_t>(rasi));
    SunNature = row[0];
    MoonNature = row[1];
    MarsNature = row[2];
    MercuryNature = row[3];
    JupiterNature = row[4];
    VenusNature = row[5];
    SaturnNature = row[6];
}

} // namespace kelvaro
