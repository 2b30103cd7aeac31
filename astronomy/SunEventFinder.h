#pragma once

#include "astronomy/clsSunrise.h"

#include <cstdint>
#include <memory>
#include <string>

namespace kelvaro {

/// What the finders of sunrise and sunset share: a calculation object of their own, made on first use, and
/// the turning of hemisphere letters into signs.
///
/// Degrees and minutes are magnitudes, their side given by "N" or "S" and "E" or "W"; `zoneHours` are hours
/// from Greenwich, West unless `strZoneSide` is "E". `daylightFlag` changes no result.
class SunEventFinder {
protected:
    /// The calculation object with the events of the date. Raises what `clsSunrise::FnCalculate` raises.
    const clsSunrise &Calculate(Moment date, const std::string &strNS, double latDeg, double latMin,
                                const std::string &strEW, double lonDeg, double lonMin,
                                std::int16_t daylightFlag, double zoneHours, const std::string &strZoneSide);

private:
    std::unique_ptr<clsSunrise> sunrise_;
};

} // namespace kelvaro
