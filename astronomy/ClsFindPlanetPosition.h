#pragma once

#include "astronomy/Ayanamsa.h"
#include "astronomy/ClsPlanet.h"
#include "astronomy/Site.h"

#include <string>

namespace kelvaro {

/// Sidereal degrees, 0 to 360, and the ayanamsa that was added to the tropical ones, normally negative.
struct SunAndMoon {
    double sun = 0;
    double moon = 0;
    double ayanamsa = 0;
};

/// Positions for a moment and a place stated with hemisphere letters.
///
/// Run one of the finding operations for a moment, then read as many of the longitudes as are needed:
/// sidereal degrees, 0 to 360, or 0 before the first run. A later run replaces them all.
class ClsFindPlanetPosition {
public:
    double FnFindLagnaPosition() { return planet_.LagnaValue; }
    double FnFindSunPosition() { return planet_.SuryaValue; }
    /// Degrees added to the tropical longitudes, normally negative.
    double FnFindAyanamsa() { return planet_.Ayanamsa; }
    double FnFindMoonPosition() { return planet_.ChandraValue; }
    double FnFindMarsPosition() { return planet_.KujaValue; }
    double FnFindMercuryPosition() { return planet_.BudhaValue; }
    double FnFindJupiterPosition() { return planet_.GuruValue; }
    double FnFindVenusPosition() { return planet_.SukraValue; }
    double FnFindSaturnPosition() { return planet_.SaniValue; }
    double FnFindRahuPosition() { return planet_.RahuValue; }
    double FnFindMidHeaven() { return planet_.MidHeaven; }
    double FnFindKethuPosition() { return planet_.KethuValue; }

    /// `date` is the civil moment at the place; degrees and minutes are magnitudes, their side given by "N"
    /// or "S" and "E" or "W"; a negative degree value passes with its sign. `zoneHours` are hours from
    /// Greenwich, West with "W". `daylightHours` is accepted and not used. `zeroYear` and `progress` (seconds
    /// of arc a year) count for the ayanamsa "Custom" only. Raises what `ClsPlanet::FnCalculate` raises.
    void FindFixValues(Moment date, const std::string &strNS, double latDeg, double latMin,
                       const std::string &strEW, double lonDeg, double lonMin, double zoneHours,
                       const std::string &strZoneSide, double daylightHours, const std::string &ayanamsaType,
                       double zeroYear, double progress);

    /// The same for a site under an ayanamsa.
    void FindFixValuesAt(Moment date, const Site &site, const AyanamsaSettings &ayanamsa);

    /// Sun, Moon and ayanamsa alone, for searches through many moments; the other longitudes stay as they
    /// were. Raises what `ClsPlanet::FnCalculateSunAndMoon` raises.
    SunAndMoon FindSunAndMoonAt(Moment date, const Site &site, const AyanamsaSettings &ayanamsa);

    /// Takes up again what an earlier search found for a moment, in the place of finding it anew.
    void Recall(const SunAndMoon &found);

private:
    void SetInputs(Moment date, const Site &site, const AyanamsaSettings &ayanamsa);

    ClsPlanet planet_;
};

} // namespace kelvaro
