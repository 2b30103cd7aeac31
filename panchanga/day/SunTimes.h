#pragma once

#include "astronomy/clsFindSunrise.h"

namespace kelvaro {

/// Sunrise and sunset at a site, to the whole minute. The clock of a moment does not count, only its date.
/// A date without a sunset has the one found last, so there is one object for the run of the program. Raises
/// what `clsSunrise` raises.
class SunTimes {
public:
    struct Day {
        Moment sunrise;
        Moment sunset;
        Moment nextSunrise; ///< of the following date
    };

    Day SunTimesOf(Moment moment, const Site &site) {
        return {SunriseOf(moment, site), sunset_.FnFindSunset(moment, site),
                SunriseOf(DateAdd(Interval::Day, 1, moment), site)};
    }

    Moment SunriseOf(Moment moment, const Site &site) { return sunrise_.FnFindSunrise(moment, site); }

    /// What the date itself has. Stands until the next call.
    const SunEvents &EventsOf(Moment moment, const Site &site) { return sunrise_.EventsOf(moment, site); }

private:
    clsFindSunrise sunrise_;
    clsFindSunSet sunset_;
};

} // namespace kelvaro
