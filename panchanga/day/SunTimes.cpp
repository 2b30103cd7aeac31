#include "panchanga/day/SunTimes.h"

namespace kelvaro {

SunTimes::Day SunTimes::SunTimesOf(Moment moment) {
    Day day;
    day.sunrise = SunriseOf(moment);
    day.sunset = SunsetOf(moment);
    day.nextSunrise = SunriseOf(DateAdd(Interval::Day, 1, moment));
    return day;
}

Moment SunTimes::SunriseOf(Moment moment) {
    return sunrise_.FnFindSunrise(moment, state_.LatNS, state_.LatDeg, state_.LatMin, state_.LonEW,
                                  state_.LonDeg, state_.LonMin, 0, state_.TimeDiff, state_.TimeDiffEW);
}

Moment SunTimes::SunsetOf(Moment moment) {
    return sunset_.FnFindSunset(moment, state_.LatNS, state_.LatDeg, state_.LatMin, state_.LonEW,
                                state_.LonDeg, state_.LonMin, 0, state_.TimeDiff, state_.TimeDiffEW);
}

} // namespace kelvaro
