#pragma once

#include "astronomy/Site.h"
#include "astronomy/clsSunrise.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelvaro {

/// What the finders of sunrise and sunset share: a calculation object of their own, the turning of hemisphere
/// letters into signs, and a memory for the dates of the place asked about last.
///
/// Degrees and minutes are magnitudes, their side given by "N" or "S" and "E" or "W"; `zoneHours` are hours
/// from Greenwich, West unless `strZoneSide` is "E". `daylightFlag` changes no result. Moments are civil
/// moments of the place, of which the date counts. Raises what `clsSunrise::FnCalculate` raises.
class SunEventFinder {
public:
    /// What the search finds for the date, without what is carried over from another one. Stands until the
    /// next call.
    const SunEvents &EventsOf(Moment date, const Site &site);

protected:
    /// The calculation object with the events of the date.
    const clsSunrise &Calculate(Moment date, const Site &site);

private:
    struct Found {
        Moment date;
        SunEvents events;
    };

    clsSunrise sunrise_;
    Site site_;
    std::vector<Found> found_; ///< at that site
};

/// Finds the sunrise of a date.
class clsFindSunrise : private SunEventFinder {
public:
    using SunEventFinder::EventsOf;

    Moment FnFindSunrise(Moment date, const Site &site) { return Calculate(date, site).m_dateSunrise; }
    Moment FnFindSunrise(Moment date, const std::string &strNS, double latDeg, double latMin,
                         const std::string &strEW, double lonDeg, double lonMin,
                         std::int16_t /*daylightFlag*/, double zoneHours, const std::string &strZoneSide) {
        return FnFindSunrise(date, {latDeg, latMin, strNS, lonDeg, lonMin, strEW, zoneHours, strZoneSide});
    }
};

/// Finds the sunset of a date; for a date without one, that of the date asked for before.
class clsFindSunSet : private SunEventFinder {
public:
    Moment FnFindSunset(Moment date, const Site &site) { return Calculate(date, site).m_dateSunset; }
    Moment FnFindSunset(Moment date, const std::string &strNS, double latDeg, double latMin,
                        const std::string &strEW, double lonDeg, double lonMin, std::int16_t /*daylightFlag*/,
                        double zoneHours, const std::string &strZoneSide) {
        return FnFindSunset(date, {latDeg, latMin, strNS, lonDeg, lonMin, strEW, zoneHours, strZoneSide});
    }
};

} // namespace kelvaro
