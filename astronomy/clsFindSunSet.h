#pragma once

#include "astronomy/SunEventFinder.h"

namespace kelvaro {

/// Finds the sunset of a date.
class clsFindSunSet : private SunEventFinder {
public:
    Moment FnFindSunset(Moment date, const std::string &strNS, double latDeg, double latMin,
                        const std::string &strEW, double lonDeg, double lonMin, std::int16_t daylightFlag,
                        double zoneHours, const std::string &strZoneSide) {
        return Calculate(date, strNS, latDeg, latMin, strEW, lonDeg, lonMin, daylightFlag, zoneHours,
                         strZoneSide)
            .m_dateSunset;
    }
};

} // namespace kelvaro
