#include "astronomy/ClsFindPlanetPosition.h"

namespace kelvaro {

void ClsFindPlanetPosition::SetInputs(Moment date, const Site &site, const AyanamsaSettings &ayanamsa) {
    planet_.BirthDateTime = date;
    planet_.CL_LatitudeDeg = site.LatNS == "S" && site.LatDeg > 0 ? -site.LatDeg : site.LatDeg;
    planet_.CL_LongitudeDeg = site.LonEW == "E" && site.LonDeg > 0 ? -site.LonDeg : site.LonDeg;
    planet_.CL_LongitudeMin = site.LonMin;
    planet_.CL_LatitideMin = site.LatMin;
    const bool isCustom = AyanamsaOf(ayanamsa.word) == Ayanamsa::Custom;
    planet_.strProgressVal = isCustom ? ayanamsa.progress : 0;
    planet_.strZeroYearVal = isCustom ? ayanamsa.zeroYear : 0;
    planet_.TZone = site.TimeDiffEW == "W" ? -site.TimeDiff : site.TimeDiff;
    planet_.DSAVE = 0;
    planet_.AyType = ayanamsa.word;
}

void ClsFindPlanetPosition::FindFixValues(Moment date, const std::string &strNS, double latDeg, double latMin,
                                          const std::string &strEW, double lonDeg, double lonMin,
                                          double zoneHours, const std::string &strZoneSide,
                                          double /*daylightHours*/, const std::string &ayanamsaType,
                                          double zeroYear, double progress) {
    FindFixValuesAt(date, {latDeg, latMin, strNS, lonDeg, lonMin, strEW, zoneHours, strZoneSide},
                    {ayanamsaType, zeroYear, progress});
}

void ClsFindPlanetPosition::FindFixValuesAt(Moment date, const Site &site, const AyanamsaSettings &ayanamsa) {
    SetInputs(date, site, ayanamsa);
    planet_.FnCalculate();
}

SunAndMoon ClsFindPlanetPosition::FindSunAndMoonAt(Moment date, const Site &site,
                                                   const AyanamsaSettings &ayanamsa) {
    SetInputs(date, site, ayanamsa);
    planet_.FnCalculateSunAndMoon();
    return {planet_.SuryaValue, planet_.ChandraValue, planet_.Ayanamsa};
}

void ClsFindPlanetPosition::Recall(const SunAndMoon &found) {
    planet_.SuryaValue = found.sun;
    planet_.ChandraValue = found.moon;
    planet_.Ayanamsa = found.ayanamsa;
}

} // namespace kelvaro
