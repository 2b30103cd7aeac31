#pragma once

#include "astronomy/ClsPlanet.h"

#include <memory>
#include <string>

namespace kelvaro {

/// Positions for a moment and a place stated with hemisphere letters.
///
/// Run `FindFixValues` once for a moment, then read as many of the longitudes as are needed: sidereal
/// degrees, 0 to 360, or 0 before the first run. A later run replaces them all.
class ClsFindPlanetPosition {
public:
    double FnFindLagnaPosition() { return Planet().LagnaValue; }
    double FnFindSunPosition() { return Planet().SuryaValue; }
    /// Degrees added to the tropical longitudes, normally negative.
    double FnFindAyanamsa() { return Planet().Ayanamsa; }
    double FnFindMoonPosition() { return Planet().ChandraValue; }
    double FnFindMarsPosition() { return Planet().KujaValue; }
    double FnFindMercuryPosition() { return Planet().BudhaValue; }
    double FnFindJupiterPosition() { return Planet().GuruValue; }
    double FnFindVenusPosition() { return Planet().SukraValue; }
    double FnFindSaturnPosition() { return Planet().SaniValue; }
    double FnFindRahuPosition() { return Planet().RahuValue; }
    double FnFindMidHeaven() { return Planet().MidHeaven; }
    double FnFindKethuPosition() { return Planet().KethuValue; }

    /// `date` is the civil moment at the place; degrees and minutes are magnitudes, their side given by "N"
    /// or "S" and "E" or "W"; a negative degree value passes with its sign. `zoneHours` are hours from
    /// Greenwich, West with "W". `daylightHours` is accepted and not used. `zeroYear` and `progress` (seconds
    /// of arc a year) count for the ayanamsa "Custom" only. Raises what `ClsPlanet::FnCalculate` raises.
    void FindFixValues(Moment date, const std::string &strNS, double latDeg, double latMin,
                       const std::string &strEW, double lonDeg, double lonMin, double zoneHours,
                       const std::string &strZoneSide, double daylightHours, const std::string &ayanamsaType,
                       double zeroYear, double progress);

    /// The same for Sun, Moon and ayanamsa alone, for searches through many moments.
    /// The other longitudes stay as they were.
    void FindSunAndMoon(Moment date, const std::string &strNS, double latDeg, double latMin,
                        const std::string &strEW, double lonDeg, double lonMin, double zoneHours,
                        const std::string &strZoneSide, const std::string &ayanamsaType, double zeroYear,
                        double progress);

private:
    ClsPlanet &Planet();
    void SetInputs(Moment date, const std::string &strNS, double latDeg, double latMin,
                   const std::string &strEW, double lonDeg, double lonMin, double zoneHours,
                   const std::string &strZoneSide, const std::string &ayanamsaType, double zeroYear,
                   double progress);

    std::unique_ptr<ClsPlanet> planet_;
};

} // namespace kelvaro
