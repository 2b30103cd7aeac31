#include "panchanga/almanac/clsPlanetStrength.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace kelvaro {

namespace {

struct Planet {
    std::int16_t clsPlanetStrength::*house;
    std::string clsPlanetStrength::*strength;
};

constexpr std::array<Planet, 9> planets{{
    {&clsPlanetStrength::SunHouse, &clsPlanetStrength::SunStrength},
    {&clsPlanetStrength::MoonHouse, &clsPlanetStrength::MoonStrength},
    {&clsPlanetStrength::MarsHouse, &clsPlanetStrength::MarsStrength},
    {&clsPlanetStrength::MercuryHouse, &clsPlanetStrength::MercuryStrength},
    {&clsPlanetStrength::JupiterHouse, &clsPlanetStrength::JupiterStrength},
    {&clsPlanetStrength::VenusHouse, &clsPlanetStrength::VenusStrength},
    {&clsPlanetStrength::SaturnHouse, &clsPlanetStrength::SaturnStrength},
    {&clsPlanetStrength::RahuHouse, &clsPlanetStrength::RahuStrength},
    {&clsPlanetStrength::KethuHouse, &clsPlanetStrength::KethuStrength},
}};

/// A row for each planet, a word for each sign from Aries.
constexpr std::array<std::array<std::string_view, 12>, 9> words{{
    {"Exa", "Enemy", "Neu", "Neu", "Own", "neu", "deb", "friend", "friend", "enemy", "enemy", "Friend"},
    {"Neu", "Exa", "Friend", "Own", "friend", "friend", "neu", "deb", "neu", "neu", "neu", "Neu"},
    {"Own", "Neu", "Ene", "Deb", "friend", "enemy", "neu", "own", "friend", "exa", "neu", "Friend"},
    {"Neu", "Friend", "Own", "Enemy", "friend", "exa-own", "friend", "neu", "neu", "neu", "neu", "Deb"},
    {"Friend", "Neu", "Ene", "Exa", "friend", "friend", "enemy", "friend", "own", "deb", "neu", "Own"},
    {"Neu", "Own", "Friend", "Enemy", "Enemy", "deb", "own", "neu", "friend", "friend", "friend", "Exa"},
    {"Deb", "Friend", "Friend", "Enemy", "Enemy", "friend", "exa", "enemy", "neu", "own", "own", "Neu"},
    {"Neu", "Exa", "Friend", "Enemy", "Enemy", "friend", "friend", "exa", "friend", "friend", "enemy", "Neu"},
    {"Enemy", "Deb", "Friend", "Enemy", "Enemy", "friend", "friend", "deb", "neu", "friend", "enemy", "Neu"},
}};

} // namespace

void clsPlanetStrength::FindPlanetStrength() {
    for (std::size_t planet = 0; planet < planets.size(); ++planet) {
        const auto &[house, strength] = planets.at(planet);
        const std::int16_t sign = this->*house;
        if (sign >= 0 && sign < static_cast<std::int16_t>(words.at(planet).size())) {
            this->*strength = words.at(planet).at(static_cast<std::size_t>(sign));
        }
    }
}

} // namespace kelvaro
