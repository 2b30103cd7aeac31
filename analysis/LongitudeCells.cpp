#include "analysis/LongitudeCells.h"

#include "analysis/Lords.h"
#include "analysis/SubLords.h"
#include "panchanga/Sign.h"

namespace kelvaro {

std::vector<std::string> LongitudeCells(const Names &names, clsStar &star, double longitude) {
    star.PlanetPosition = longitude;
    star.findstar();
    return {
        RasiNameOf(names, RasiOfLongitude(longitude, rasiSize)),
        RasiLordOf(names, longitude, "Rasi"),
        star.StarName,
        std::to_string(star.StarQuarter),
        LocalisedPlanetName(names, StarLordOf(star.StarNo)),
        SubLordOf(names, longitude),
    };
}

} // namespace kelvaro
