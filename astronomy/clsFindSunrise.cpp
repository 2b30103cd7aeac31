#include "astronomy/clsFindSunrise.h"

#include <algorithm>

namespace kelvaro {

const clsSunrise &SunEventFinder::Calculate(Moment date, const Site &site) {
    sunrise_.Take(EventsOf(date, site));
    return sunrise_;
}

const SunEvents &SunEventFinder::EventsOf(Moment date, const Site &site) {
    // A birth and its solar year ask for some fifty dates, most of them several times.
    constexpr std::size_t mostDates = 100;
    if (site != site_ || found_.size() > mostDates) {
        found_.clear();
        site_ = site;
    }
    const Moment day = DateOf(date);
    const auto known = std::ranges::find(found_, day, &Found::date);
    if (known != found_.end()) {
        return known->events;
    }
    sunrise_.BirthDateTime = date;
    sunrise_.CL_LatitudeDeg = site.LatNS == "S" && site.LatDeg > 0 ? -site.LatDeg : site.LatDeg;
    sunrise_.CL_LongitudeDeg = site.LonEW == "W" && site.LonDeg > 0 ? -site.LonDeg : site.LonDeg;
    sunrise_.CL_LongitudeMin = site.LonMin;
    sunrise_.CL_LatitideMin = site.LatMin;
    sunrise_.STZ = site.TimeDiffEW == "E" ? site.TimeDiff : -site.TimeDiff;
    sunrise_.DSAVE = 0;
    found_.push_back({day, sunrise_.FindEvents()});
    return found_.back().events;
}

} // namespace kelvaro
