#pragma once

#include "horoscope/record/Positions.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

/// What the points between Midheaven and Lagna are to the houses.
enum class HouseSystem {
    Equal,    ///< the middles of the houses
    NotEqual, ///< their starts
    Unknown,  ///< a word of no system: divided as Equal
};

/// The system of a preference word.
constexpr HouseSystem HouseSystemOf(std::string_view word) {
    if (word == "Equal") {
        return HouseSystem::Equal;
    }
    return word == "Not Equal" ? HouseSystem::NotEqual : HouseSystem::Unknown;
}

/// Houses 1 to 12, at index 0 to 11: start, mid point and end (sandhi) in degrees, rasi number, bodies
/// within.
struct Houses {
    std::array<double, 12> BhavaStart{}, BhavaMid{}, BhavaSandhi{};
    std::array<std::int16_t, 12> BhavaRasi{};
    std::array<std::vector<Body>, 12> bodies;
    std::array<std::string, 12> BhavaPlanets; ///< short names of the bodies, separated by a blank
};

} // namespace kelvaro
