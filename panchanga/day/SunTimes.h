#pragma once

#include "astronomy/clsFindSunSet.h"
#include "astronomy/clsFindSunrise.h"
#include "horoscope/record/HoroscopeState.h"

namespace kelvaro {

/// Sunrise and sunset at the place of the record, to the whole minute. The clock of a moment does not count,
/// only its date. Raises what `clsSunrise` raises.
class SunTimes {
public:
    struct Day {
        Moment sunrise;
        Moment sunset;
        Moment nextSunrise; ///< of the following date
    };

    /// The record and the finders must outlive the object.
    SunTimes(const HoroscopeState &state, clsFindSunrise &sunrise, clsFindSunSet &sunset)
        : state_(state), sunrise_(sunrise), sunset_(sunset) {}
    SunTimes(const SunTimes &) = delete;
    SunTimes &operator=(const SunTimes &) = delete;
    ~SunTimes() = default;

    Day SunTimesOf(Moment moment);
    Moment SunriseOf(Moment moment);
    Moment SunsetOf(Moment moment);

private:
    const HoroscopeState &state_;
    clsFindSunrise &sunrise_;
    clsFindSunSet &sunset_;
};

} // namespace kelvaro
