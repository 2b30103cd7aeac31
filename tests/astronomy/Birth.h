#pragma once

#include "astronomy/ClsFindPlanetPosition.h"
#include "runtime/Moment.h"

#include <cmath>
#include <string>

namespace kelvaro {

/// A place with hemisphere letters.
struct BirthPlace {
    double latDeg = 0, latMin = 0;
    const char *latSide = "N";
    double lonDeg = 0, lonMin = 0;
    const char *lonSide = "E";
};

/// Runs the facade for a civil moment at a zone.
inline void FindPositions(ClsFindPlanetPosition &facade, const CivilMoment &civil, double zone,
                          const char *zoneSide, const BirthPlace &place = {},
                          const std::string &ayanamsa = "Sayana", double zeroYear = 0, double progress = 0) {
    facade.FindFixValues(MomentOf(civil.date, civil.clock), place.latSide, place.latDeg, place.latMin,
                         place.lonSide, place.lonDeg, place.lonMin, zone, zoneSide, 0, ayanamsa, zeroYear,
                         progress);
}

/// The way from one longitude to another, -180 to 180 degrees.
inline double Deviation(double longitude, double expected) {
    return std::remainder(longitude - expected, 360);
}

} // namespace kelvaro
