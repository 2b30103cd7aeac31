#include "tools/horoscope-json/ZoneCheckWriter.h"

#include "horoscope/entry/BirthplaceClock.h"
#include "runtime/RuntimeError.h"
#include "store/masters/CityZones.h"
#include "store/masters/PlaceLists.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace kelvaro {

namespace {

using nlohmann::ordered_json;

std::int32_t CountryNamed(const std::string &name, store::Connection &connection) {
    const auto countries = store::PlaceLists(connection).Countries();
    const auto found = std::ranges::find(countries, name, &store::ListItem::text);
    return found == countries.end() ? 0 : found->key;
}

/// A number of seconds as hours to six places, so that a third of an hour stays short.
double Hours(const ClockOffset &offset) {
    constexpr double secondsOfHour = 3600;
    constexpr double places = 1e6;
    return std::round(static_cast<double>(offset.fromGreenwich.count()) / secondsOfHour * places) / places;
}

} // namespace

ordered_json ZoneCheckJson(const HoroscopeState &state, store::Connection &connection) {
    const store::CityZones zones(connection);
    if (!zones.AreKnown()) {
        return {{"error", "This database does not tell the zones of cities"}};
    }
    const auto zone =
        zones.ZoneOfCity(state.birth.BirthCity, CountryNamed(state.birth.BirthCountry, connection));
    if (!zone) {
        return {{"error", "There is no city " + state.birth.BirthCity}};
    }
    const Site &site = state.site;
    const double stated = SignedHours(site.TimeDiff, site.TimeDiffEW);
    const auto check = CheckClock({Split(state.birth.BirthMoment), *zone, stated,
                                   LocalMeanTimeAt(site.LonDeg, site.LonMin, site.LonEW)});
    if (!check) {
        return {{"error", HasZoneRecords() ? "The records of time zones do not reach this birth"
                                           : "This machine has no records of time zones"}};
    }
    return {{"zone", *zone},
            {"clock", Hours(check->offset)},
            {"summer", check->offset.isSummer},
            {"stated", stated},
            {"agrees", check->agrees},
            {"once", check->reading.shown == ClockReading::Shown::Once},
            {"sure", check->isSure}};
}

} // namespace kelvaro
