#pragma once

#include "panchanga/PlacePositions.h"
#include "panchanga/clsTithi.h"

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

/// Walks the clock hour by hour and looks at the lunar day and the Sun's sign, with Sun and Moon found anew
/// at each hour. Raises what the astronomy raises, and OverflowError for a walk that leaves the calendar.
class TithiSearch {
public:
    /// Both must outlive the object.
    TithiSearch(PlacePositions &positions, clsTithi &tithi) : positions_(positions), tithi_(tithi) {}
    TithiSearch(const TithiSearch &) = delete;
    TithiSearch &operator=(const TithiSearch &) = delete;
    ~TithiSearch() = default;

    /// Counts the times that the lunar day of that name begins (walking back) and returns (walking on) in one
    /// sign of the Sun, from 11:55 PM of the birth date. The walk goes back to where the Sun leaves the sign
    /// of the last one found, and on likewise, unless two were found already.
    void Count(std::string_view tithi, Moment birthMoment, TithiCount &count);

    /// Walks on to the next hour of a Bright "Pratipada" and returns it.
    Moment WalkToBrightPratipada(Moment from);

    void LookAt(Moment cursor) { sky_ = positions_.SunAndMoonAt(cursor); }
    /// Looks at the Sun and puts the Lagna in the place of the Moon.
    void LookAtSunAndLagna(Moment cursor);

    // At the moment looked at last.
    double Sun() const { return sky_.sun; }
    std::string_view Sign() const;
    bool Is(std::string_view tithi);
    bool Is(std::string_view side, std::string_view tithi);

private:
    std::string_view SearchBackward(std::string_view tithi, Moment first, TithiCount &count);
    std::int16_t SearchForward(std::string_view tithi, Moment first, std::string_view backwardSign);
    Moment LeaveTithi(std::string_view tithi, std::int32_t hours, Moment cursor);

    PlacePositions &positions_;
    clsTithi &tithi_;
    PlacePositions::SunAndMoon sky_;
};

} // namespace kelvaro
