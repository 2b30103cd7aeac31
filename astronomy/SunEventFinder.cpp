#include "astronomy/SunEventFinder.h"

namespace kelvaro {

const clsSunrise &SunEventFinder::Calculate(Moment date, const std::string &strNS, double latDeg,
                                            double latMin, const std::string &strEW, double lonDeg,
                                            double lonMin, std::int16_t daylightFlag, double zoneHours,
                                            const std::string &strZoneSide) {
    if (!sunrise_) {
        sunrise_ = std::make_unique<clsSunrise>();
    }
    sunrise_->BirthDateTime = date;
    sunrise_->CL_LatitudeDeg = strNS == "S" && latDeg > 0 ? -latDeg : latDeg;
    sunrise_->CL_LongitudeDeg = strEW == "W" && lonDeg > 0 ? -lonDeg : lonDeg;
    sunrise_->CL_LongitudeMin = lonMin;
    sunrise_->CL_LatitideMin = latMin;
    sunrise_->STZ = strZoneSide == "E" ? zoneHours : -zoneHours;
    if (daylightFlag == 0) {
        sunrise_->DSAVE = 0;
    }
    sunrise_->FnCalculate();
    return *sunrise_;
}

} // namespace kelvaro
