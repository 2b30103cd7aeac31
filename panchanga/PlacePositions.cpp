#include "panchanga/PlacePositions.h"

namespace kelvaro {

void FindFixValuesAt(ClsFindPlanetPosition &position, const HoroscopeState &state, Moment moment,
                     const std::string &ayanamsa) {
    position.FindFixValues(moment, state.LatNS, state.LatDeg, state.LatMin, state.LonEW, state.LonDeg,
                           state.LonMin, state.TimeDiff, state.TimeDiffEW, 0, ayanamsa, state.YearInForce,
                           state.ProgressInForce);
}

PlacePositions::SunAndMoon PlacePositions::SunAndMoonAt(Moment moment) {
    position_.FindSunAndMoon(moment, state_.LatNS, state_.LatDeg, state_.LatMin, state_.LonEW, state_.LonDeg,
                             state_.LonMin, state_.TimeDiff, state_.TimeDiffEW, state_.AyanamsaInForce,
                             state_.YearInForce, state_.ProgressInForce);
    return {position_.FnFindSunPosition(), position_.FnFindMoonPosition()};
}

PlacePositions::SunAndLagna PlacePositions::SunAndLagnaAt(Moment moment) {
    FindFixValuesAt(position_, state_, moment, state_.AyanamsaInForce);
    return {position_.FnFindSunPosition(), position_.FnFindLagnaPosition()};
}

} // namespace kelvaro
