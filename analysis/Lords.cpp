#include "analysis/Lords.h"

#include "horoscope/record/Bodies.h"
#include "panchanga/Sign.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kelvaro {

namespace {

/// Lords of the rasis from Aries on.
constexpr std::array<Body, 12> rasiLords{
    Body::Mars,  Body::Venus, Body::Mercury, Body::Moon,   Body::Sun,    Body::Mercury,
    Body::Venus, Body::Mars,  Body::Jupiter, Body::Saturn, Body::Saturn, Body::Jupiter,
};

/// Lords of the stars from Ashwini on, three rounds of nine. Abijit stands apart, after Uttarashada, and
/// shares its lord.
constexpr std::array<std::string_view, 28> starLords{
    "Kethu", "Venus", "Sun", "Moon", "Mars", "Rahu", "Jupiter", "Saturn",  "Mercury", //
    "Kethu", "Venus", "Sun", "Moon", "Mars", "Rahu", "Jupiter", "Saturn",  "Mercury", //
    "Kethu", "Venus", "Sun", "Sun",  "Moon", "Mars", "Rahu",    "Jupiter", "Saturn",  "Mercury",
};

struct EnglishName {
    std::string_view name;
    Body body;
};

/// Between routines the south node goes by another spelling than in the tables.
constexpr std::array<EnglishName, 9> englishNames{{
    {"Sun", Body::Sun},
    {"Moon", Body::Moon},
    {"Mars", Body::Mars},
    {"Mercury", Body::Mercury},
    {"Jupiter", Body::Jupiter},
    {"Venus", Body::Venus},
    {"Saturn", Body::Saturn},
    {"Rahu", Body::Rahu},
    {"Kethu", Body::Ketu},
}};

/// The place in a table of twelve of a rasi, 1 to 12.
std::size_t PlaceOf(std::int16_t rasi) {
    if (rasi < 1 || rasi > 12) {
        throw OverflowError("Overflow: there is no rasi " + std::to_string(rasi));
    }
    return static_cast<std::size_t>(rasi - 1);
}

} // namespace

std::string RasiLordOf(const HoroscopeState &state, double longitude, std::string_view kind) {
    const std::int16_t rasi = RasiOfLongitude(longitude, kind == "Rasi" ? rasiSize : navamsaSize);
    return LongNameOf(state, rasiLords.at(PlaceOf(rasi)));
}

std::string_view StarLordOf(std::int16_t star) {
    if (star < 1 || star > 28) {
        return {};
    }
    return starLords.at(static_cast<std::size_t>(star - 1));
}

std::string LocalisedPlanetName(const HoroscopeState &state, std::string_view englishName) {
    const auto *const found =
        std::find_if(englishNames.begin(), englishNames.end(),
                     [=](const EnglishName &entry) { return entry.name == englishName; });
    return found == englishNames.end() ? std::string() : LongNameOf(state, found->body);
}

const std::string &RasiNameOf(const HoroscopeState &state, std::int16_t rasi) {
    return state.names.RasiNames.at(PlaceOf(rasi));
}

} // namespace kelvaro
