#include "astronomy/ClsFindPlanetPosition.h"

namespace kelvaro {

ClsPlanet &ClsFindPlanetPosition::Planet() {
    if (!planet_) {
        planet_ = std::make_unique<ClsPlanet>();
    }
    return *planet_;
}

void ClsFindPlanetPosition::SetInputs(Moment date, const std::string &strNS, double latDeg, double latMin,
                                      const std::string &strEW, double lonDeg, double lonMin,
                                      double zoneHours, const std::string &strZoneSide,
                                      const std::string &ayanamsaType, double zeroYear, double progress) {
    ClsPlanet &planet = Planet();
    planet.BirthDateTime = date;
    planet.CL_LatitudeDeg = strNS == "S" && latDeg > 0 ? -latDeg : latDeg;
    planet.CL_LongitudeDeg = strEW == "E" && lonDeg > 0 ? -lonDeg : lonDeg;
    planet.CL_LongitudeMin = lonMin;
    planet.CL_LatitideMin = latMin;
    const bool isCustom = ayanamsaType == "Custom";
    planet.strProgressVal = isCustom ? progress : 0;
    planet.strZeroYearVal = isCustom ? zeroYear : 0;
    planet.TZone = strZoneSide == "W" ? -zoneHours : zoneHours;
    planet.DSAVE = 0;
    planet.AyType = ayanamsaType;
}

void ClsFindPlanetPosition::FindFixValues(Moment date, const std::string &strNS, double latDeg, double latMin,
                                          const std::string &strEW, double lonDeg, double lonMin,
                                          double zoneHours, const std::string &strZoneSide,
                                          double /*daylightHours*/, const std::string &ayanamsaType,
                                          double zeroYear, double progress) {
    SetInputs(date, strNS, latDeg, latMin, strEW, lonDeg, lonMin, zoneHours, strZoneSide, ayanamsaType,
              zeroYear, progress);
    Planet().FnCalculate();
}

void ClsFindPlanetPosition::FindSunAndMoon(Moment date, const std::string &strNS, double latDeg,
                                           double latMin, const std::string &strEW, double lonDeg,
                                           double lonMin, double zoneHours, const std::string &strZoneSide,
                                           const std::string &ayanamsaType, double zeroYear,
                                           double progress) {
    SetInputs(date, strNS, latDeg, latMin, strEW, lonDeg, lonMin, zoneHours, strZoneSide, ayanamsaType,
              zeroYear, progress);
    Planet().FnCalculateSunAndMoon();
}

} // namespace kelvaro
