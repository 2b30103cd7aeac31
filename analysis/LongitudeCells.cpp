#include "analysis/LongitudeCells.h"

#include "analysis/Lords.h"
#include "analysis/SubLords.h"
#include "panchanga/Sign.h"

namespace kelvaro {

std::vector<std::string> LongitudeCells(const HoroscopeState &state, clsStar &star, double longitude) {
    star.PlanetPosition = longitude;
    star.findstar();
    return {
        RasiNameOf(state, RasiOfLongitude(longitude, rasiSize)),
        RasiLordOf(state, longitude, "Rasi"),
        star.StarName,
        std::to_string(star.StarQuarter),
        LocalisedPlanetName(state, StarLordOf(star.StarNo)),
        SubLordOf(state, longitude),
    };
}

} // namespace kelvaro
