#pragma once

#include "horoscope/record/HoroscopeState.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace kelvaro {

/// The bodies of a chart in their canonical order.
enum class Body { Lagna, Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Rahu, Ketu, Gulika, Maandi };

/// Where the record keeps what belongs to a body.
struct BodyFields {
    Body body;
    double HoroscopeState::*longitude;
    std::int16_t HoroscopeState::*rasi;
};

inline constexpr std::array<BodyFields, 12> bodyFields{{
    {Body::Lagna, &HoroscopeState::LagnaLon, &HoroscopeState::LagnaRasi},
    {Body::Sun, &HoroscopeState::SunLon, &HoroscopeState::SunRasi},
    {Body::Moon, &HoroscopeState::MoonLon, &HoroscopeState::MoonRasi},
    {Body::Mars, &HoroscopeState::MarsLon, &HoroscopeState::MarsRasi},
    {Body::Mercury, &HoroscopeState::MercuryLon, &HoroscopeState::MercuryRasi},
    {Body::Jupiter, &HoroscopeState::JupiterLon, &HoroscopeState::JupiterRasi},
    {Body::Venus, &HoroscopeState::VenusLon, &HoroscopeState::VenusRasi},
    {Body::Saturn, &HoroscopeState::SaturnLon, &HoroscopeState::SaturnRasi},
    {Body::Rahu, &HoroscopeState::RahuLon, &HoroscopeState::RahuRasi},
    {Body::Ketu, &HoroscopeState::KetuLon, &HoroscopeState::KetuRasi},
    {Body::Gulika, &HoroscopeState::GulikaLon, &HoroscopeState::GulikaRasi},
    {Body::Maandi, &HoroscopeState::MaandiLon, &HoroscopeState::MaandiRasi},
}};

inline const std::string &ShortNameOf(const HoroscopeState &state, Body body) {
    return state.ShortNames.at(static_cast<std::size_t>(body));
}

/// The place of a body in the table of long names, where Venus stands before Jupiter.
constexpr std::size_t LongNameIndex(Body body) {
    switch (body) {
    case Body::Venus:
        return 5;
    case Body::Jupiter:
        return 6;
    default:
        return static_cast<std::size_t>(body);
    }
}

inline const std::string &LongNameOf(const HoroscopeState &state, Body body) {
    if (body == Body::Gulika) {
        return state.GulikaLongName;
    }
    if (body == Body::Maandi) {
        return state.MaandiLongName;
    }
    return state.LongNames.at(LongNameIndex(body));
}

} // namespace kelvaro
