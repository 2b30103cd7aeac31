#pragma once

#include "astronomy/ClsFindPlanetPosition.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace kelvaro {

/// What a search for the full or new moons around a birth found.
struct TithiCount {
    std::int16_t backward = 0; ///< before the end of the birth date, the Sun standing in the sign of the last
    std::int16_t forward = 0;  ///< after it, in that same sign
    std::vector<Moment> dates; ///< of the backward count, without a clock, latest first
    double sun = 0; ///< degrees, at the start of the earliest of them; no search begins by clearing it
};

/// The searches of the calendars around one birth, at its site and under its ayanamsa: they walk the clock
/// hour by hour and look at the lunar day and the Sun's sign.
///
/// Sun and Moon are found for each hour of a walk, and taken up again where another walk of the same birth
/// comes to the same hour. Raises what the astronomy raises, and OverflowError for a walk that leaves the
/// calendar.
class TithiSearch {
public:
    /// `position` must outlive the object and be that of the calendars alone: under an unknown ayanamsa it
    /// goes on from the ayanamsa of its last moment.
    TithiSearch(ClsFindPlanetPosition &position, Site site, AyanamsaSettings ayanamsa, Moment birthMoment);
    TithiSearch(const TithiSearch &) = delete;
    TithiSearch &operator=(const TithiSearch &) = delete;
    ~TithiSearch() = default;

    Moment BirthMoment() const { return birthMoment_; }
    const Site &BirthSite() const { return site_; }

    /// Counts the times that the lunar day of that name begins (walking back) and returns (walking on) in one
    /// sign of the Sun, from 11:55 PM of the birth date. The walk goes back to where the Sun leaves the sign
    /// of the last one found, and on likewise, unless two were found already.
    void Count(std::string_view tithi, TithiCount &count);

    /// Walks on to the next hour of a Bright "Pratipada" and returns it.
    Moment WalkToBrightPratipada(Moment from);

    void LookAt(Moment moment);
    /// Looks at the Sun and puts the Lagna in the place of the Moon.
    void LookAtSunAndLagna(Moment moment);

    // At the moment looked at last.
    double Sun() const { return sky_.sun; }
    double Moon() const { return sky_.moon; }
    std::string_view Sign() const;
    bool Is(std::string_view tithi) const;
    bool Is(std::string_view side, std::string_view tithi) const;

private:
    std::string_view SearchBackward(std::string_view tithi, TithiCount &count);
    std::int16_t SearchForward(std::string_view tithi, std::string_view backwardSign);
    std::int32_t LeaveTithi(std::string_view tithi, std::int32_t step, std::int32_t hour);
    Moment MomentOfHour(std::int32_t hour) const;
    void LookAtHour(std::int32_t hour);

    ClsFindPlanetPosition &position_;
    Site site_;
    AyanamsaSettings ayanamsa_;
    Moment birthMoment_;
    Moment firstHour_;                  ///< of all walks, whatever the clock of the birth
    std::vector<SunAndMoon> back_, on_; ///< found at the first hour and before it; found after it
    SunAndMoon sky_;
};

} // namespace kelvaro
