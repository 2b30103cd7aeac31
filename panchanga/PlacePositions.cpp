#include "panchanga/PlacePositions.h"

namespace kelvaro {

void FindFixValuesAt(ClsFindPlanetPosition &position, const HoroscopeState &state, Moment moment,
                     const std::string &ayanamsa) {
    position.FindFixValues(moment, state.site.LatNS, state.site.LatDeg, state.site.LatMin, state.site.LonEW,
                           state.site.LonDeg, state.site.LonMin, state.site.TimeDiff, state.site.TimeDiffEW,
                           0, ayanamsa, state.preferences.YearInForce, state.preferences.ProgressInForce);
}

PlacePositions::SunAndMoon PlacePositions::SunAndMoonAt(Moment moment) {
    position_.FindSunAndMoon(moment, state_.site.LatNS, state_.site.LatDeg, state_.site.LatMin,
                             state_.site.LonEW, state_.site.LonDeg, state_.site.LonMin, state_.site.TimeDiff,
                             state_.site.TimeDiffEW, state_.preferences.AyanamsaInForce,
                             state_.preferences.YearInForce, state_.preferences.ProgressInForce);
    return {position_.FnFindSunPosition(), position_.FnFindMoonPosition()};
}

PlacePositions::SunAndLagna PlacePositions::SunAndLagnaAt(Moment moment) {
    FindFixValuesAt(position_, state_, moment, state_.preferences.AyanamsaInForce);
    return {position_.FnFindSunPosition(), position_.FnFindLagnaPosition()};
}

} // namespace kelvaro
