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
    return sunrise_.FnFindSunrise(moment, state_.site.LatNS, state_.site.LatDeg, state_.site.LatMin,
                                  state_.site.LonEW, state_.site.LonDeg, state_.site.LonMin, 0,
                                  state_.site.TimeDiff, state_.site.TimeDiffEW);
}

Moment SunTimes::SunsetOf(Moment moment) {
    return sunset_.FnFindSunset(moment, state_.site.LatNS, state_.site.LatDeg, state_.site.LatMin,
                                state_.site.LonEW, state_.site.LonDeg, state_.site.LonMin, 0,
                                state_.site.TimeDiff, state_.site.TimeDiffEW);
}

} // namespace kelvaro
