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
    double Positions::*longitude;
    std::int16_t Positions::*rasi;
};

inline constexpr std::array<BodyFields, 12> bodyFields{{
    {Body::Lagna, &Positions::LagnaLon, &Positions::LagnaRasi},
    {Body::Sun, &Positions::SunLon, &Positions::SunRasi},
    {Body::Moon, &Positions::MoonLon, &Positions::MoonRasi},
    {Body::Mars, &Positions::MarsLon, &Positions::MarsRasi},
    {Body::Mercury, &Positions::MercuryLon, &Positions::MercuryRasi},
    {Body::Jupiter, &Positions::JupiterLon, &Positions::JupiterRasi},
    {Body::Venus, &Positions::VenusLon, &Positions::VenusRasi},
    {Body::Saturn, &Positions::SaturnLon, &Positions::SaturnRasi},
    {Body::Rahu, &Positions::RahuLon, &Positions::RahuRasi},
    {Body::Ketu, &Positions::KetuLon, &Positions::KetuRasi},
    {Body::Gulika, &Positions::GulikaLon, &Positions::GulikaRasi},
    {Body::Maandi, &Positions::MaandiLon, &Positions::MaandiRasi},
}};

inline const std::string &ShortNameOf(const HoroscopeState &state, Body body) {
    return state.names.ShortNames.at(static_cast<std::size_t>(body));
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
        return state.names.GulikaLongName;
    }
    if (body == Body::Maandi) {
        return state.names.MaandiLongName;
    }
    return state.names.LongNames.at(LongNameIndex(body));
}

} // namespace kelvaro
