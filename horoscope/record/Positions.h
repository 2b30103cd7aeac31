#pragma once

#include "runtime/Moment.h"

#include <array>
#include <cstdint>
#include <string>

namespace kelvaro {

/// The bodies of a chart in their canonical order.
enum class Body { Lagna, Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Rahu, Ketu, Gulika, Maandi };

/// What a position pass finds in the sky, for one division size. Longitudes are degrees of the sidereal
/// zodiac (tropical when the ayanamsa is "Sayana").
struct Positions {
    Moment BirthMomentDate;
    double Ayanamsa = 0; ///< degrees added to tropical longitudes, normally negative
    double MidHeaven = 0;
    double LagnaLon = 0, SunLon = 0, MoonLon = 0, MarsLon = 0, MercuryLon = 0, JupiterLon = 0, VenusLon = 0,
           SaturnLon = 0, RahuLon = 0, KetuLon = 0, GulikaLon = 0, MaandiLon = 0;
    /// 1 (Aries, Mesha) to 12 (Pisces, Meena): of the Rasi or of the Navamsa, by the division size.
    std::int16_t LagnaRasi = 0, SunRasi = 0, MoonRasi = 0, MarsRasi = 0, MercuryRasi = 0, JupiterRasi = 0,
                 VenusRasi = 0, SaturnRasi = 0, RahuRasi = 0, KetuRasi = 0, GulikaRasi = 0, MaandiRasi = 0;
};

/// The limits of the day of birth, and Gulika and Maandi in it.
struct DayOfBirth {
    /// Of the civil date of birth and of the date after it.
    Moment SunriseOfBirthDay, SunsetOfBirthDay, SunriseNextDay;
    /// Of the astrological day, sunrise to sunrise, that holds the birth.
    Moment DayCurrentDate, DaySunrise, DaySunset, DayNextSunrise;
    std::string DayOrNight;
    Moment GulikaDay, GulikaNight, MandiDay, MandiNight;
    Moment GulikaMoment, MandiMoment;
    /// Tells of the first of these dates on which the Sun does not rise or does not set, and what stands in
    /// its place; empty where it does both.
    std::string SunRemark;
};

/// All that one position pass finds.
struct PositionPass {
    Positions positions;
    DayOfBirth day;
};

/// Where the positions keep what belongs to a body.
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

} // namespace kelvaro
