#include "analysis/SayanadiAvastha.h"

#include "presentation/AngleText.h"
#include "runtime/Numbers.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kelvaro {

namespace {

constexpr std::array<std::string_view, 9> lordNames{"Sun",   "Moon",   "Mars", "Mercury", "Jupiter",
                                                    "Venus", "Saturn", "Rahu", "Kethu"};

/// Upper limits of the navamsas of a sign, degrees.
constexpr std::array<double, 9> navamsaLimits{3.33333333333333, 6.66666666666667, 10,
                                              13.3333333333333, 16.6666666666667, 20,
                                              23.3333333333333, 26.6666666666667, 30};

constexpr std::array<std::string_view, 12> avasthaNames{
    "Sayana", "Upavesana", "Netrapani", "Prakasava",   "Gamana",  "Aagamana",
    "Sabha",  "Agama",     "Bhojana",   "Nrityalipsa", "Kautuka", "Nidra",
};

std::int16_t Sum(std::int16_t a, std::int16_t b) {
    return ToInt16(a + b);
}

std::int16_t Product(std::int16_t a, std::int16_t b) {
    return ToInt16(a * b);
}

/// 1 to 12, where 12 stands for no rest. A birth with local noon far from the noon of its zone can have
/// negative ghatis; below zero the count goes on round the same twelve.
std::int16_t RestOfTwelve(std::int16_t number) {
    const int rest = (number % 12 + 12) % 12;
    return static_cast<std::int16_t>(rest == 0 ? 12 : rest);
}

} // namespace

std::int16_t SortedStarNumber(clsStar &star, double longitude) {
    star.PlanetPosition = longitude;
    star.findstar();
    return static_cast<std::int16_t>(star.StarNo >= 22 ? star.StarNo - 1 : star.StarNo);
}

std::int16_t PlanetOrdinal(std::string_view lordName) {
    const auto *const found = std::find(lordNames.begin(), lordNames.end(), lordName);
    return found == lordNames.end() ? std::int16_t{0}
                                    : static_cast<std::int16_t>(found - lordNames.begin() + 1);
}

std::int16_t NavamsaInRasi(double degreesInRasi) {
    const auto *const found = std::find_if(navamsaLimits.begin(), navamsaLimits.end(),
                                           [=](double limit) { return degreesInRasi <= limit; });
    return found == navamsaLimits.end() ? std::int16_t{0}
                                        : static_cast<std::int16_t>(found - navamsaLimits.begin() + 1);
}

std::string_view AvasthaName(std::int16_t number) {
    if (number < 1 || number > 12) {
        return {};
    }
    return avasthaNames.at(static_cast<std::size_t>(number - 1));
}

std::string_view SayanadiAvastha(clsStar &star, double longitude, std::string_view lordName,
                                 double /*lagnaLongitude*/, double moonLongitude, std::int16_t lagnaRasi,
                                 double ishtaGhati) {
    std::int16_t number = Product(SortedStarNumber(star, longitude), PlanetOrdinal(lordName));
    number = Product(number, NavamsaInRasi(DegreesInRasi(longitude)));
    number = Sum(number, SortedStarNumber(star, moonLongitude));
    number = Sum(number, ToInt16(ishtaGhati));
    number = Sum(number, lagnaRasi);
    return AvasthaName(RestOfTwelve(number));
}

} // namespace kelvaro
