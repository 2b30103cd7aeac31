#include "panchanga/PlacePositions.h"

namespace kelvaro {

PlacePositions::SunAndMoon PlacePositions::SunAndMoonAt(Moment moment) {
    position_.FindSunAndMoon(moment, state_.LatNS, state_.LatDeg, state_.LatMin, state_.LonEW, state_.LonDeg,
                             state_.LonMin, state_.TimeDiff, state_.TimeDiffEW, state_.AyanamsaInForce,
                             state_.YearInForce, state_.ProgressInForce);
    return {position_.FnFindSunPosition(), position_.FnFindMoonPosition()};
}

PlacePositions::SunAndLagna PlacePositions::SunAndLagnaAt(Moment moment) {
    position_.FindFixValues(moment, state_.LatNS, state_.LatDeg, state_.LatMin, state_.LonEW, state_.LonDeg,
                            state_.LonMin, state_.TimeDiff, state_.TimeDiffEW, 0, state_.AyanamsaInForce,
                            state_.YearInForce, state_.ProgressInForce);
    return {position_.FnFindSunPosition(), position_.FnFindLagnaPosition()};
}

} // namespace kelvaro
