#pragma once

#include "runtime/Moment.h"

#include <optional>

namespace kelvaro {

/// What a search finds for a date.
struct SunEvents {
    /// What a date has none of: the Sun stays down, or it stays up. The search sees no Sun that comes, or
    /// goes, for less than two hours.
    enum class Lack { Nothing, Sunrise, Sunset };

    Moment sunrise;
    std::optional<Moment> sunset;
    // Whether they are of the date itself. Those of a following day are stamped on the date.
    bool rises = true;
    bool sets = true;
    Lack lack = Lack::Nothing;
};

/// Sunrise and sunset at a place on a civil date, to the whole minute.
///
/// A low-precision solar theory of the epoch J2000 and a search by parabolas through the sine of the Sun's
/// altitude in steps of two hours. The event is the upper limb on the horizon with refraction, 50 minutes of
/// arc below it. Where the Sun does not rise on the date the search goes on through the following days, and
/// the rise found is stamped on the date; a missing sunset leaves the earlier value in place. Raises
/// ArithmeticError for invalid numbers, and where no rise is found within the bound of the search.
class clsSunrise {
public:
    Moment BirthDateTime;       ///< the clock part is ignored
    double CL_LongitudeDeg = 0; ///< East positive here, unlike in ClsPlanet
    double CL_LongitudeMin = 0; ///< never negative
    double CL_LatitudeDeg = 0;  ///< South negative
    double CL_LatitideMin = 0;  ///< never negative
    Moment m_dateSunrise;
    Moment m_dateSunset;
    double STZ = 0;   ///< hours from Greenwich, East positive
    double DSAVE = 0; ///< not used

    void FnCalculate() { Take(FindEvents()); }

    /// The events for the inputs as they stand, without setting the results.
    SunEvents FindEvents() const;

    /// Sets the results; without a sunset the earlier one stays.
    void Take(const SunEvents &events);
};

} // namespace kelvaro
