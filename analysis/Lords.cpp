#include "analysis/Lords.h"

#include "panchanga/Sign.h"

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

} // namespace

const std::string &RasiLordOf(const Names &names, double longitude, std::string_view kind) {
    const Sign rasi(RasiOfLongitude(longitude, kind == "Rasi" ? rasiSize : navamsaSize));
    return LongNameOf(names, rasiLords.at(rasi.Index()));
}

std::string_view StarLordOf(std::int16_t star) {
    if (star < 1 || star > 28) {
        return {};
    }
    return starLords.at(static_cast<std::size_t>(star - 1));
}

std::optional<Body> LordNamed(std::string_view englishName) {
    const auto *const found = std::ranges::find(englishNames, englishName, &EnglishName::name);
    return found == englishNames.end() ? std::nullopt : std::optional(found->body);
}

std::string LocalisedPlanetName(const Names &names, std::string_view englishName) {
    const auto lord = LordNamed(englishName);
    return lord ? LongNameOf(names, *lord) : std::string();
}

const std::string &RasiNameOf(const Names &names, std::int16_t rasi) {
    return names.RasiNames.at(Sign(rasi).Index());
}

} // namespace kelvaro
