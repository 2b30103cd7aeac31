#include "horoscope/entry/BirthClock.h"

#include "horoscope/entry/DateAndTimeRules.h"
#include "runtime/RuntimeError.h"
#include "store/masters/CityZones.h"

namespace kelvaro {

namespace {

bool HasCity(const BirthFields &fields) {
    return fields.chosen.countryId != 0 && !fields.chosen.city.empty() &&
           fields.txt_VC_City == fields.chosen.city && fields.txt_VC_Country == fields.chosen.country;
}

/// Date and time where the form would take them.
std::optional<CivilMoment> ClockOf(const BirthFields &fields) {
    try {
        if (FirstBroken<BirthFields>(dateRules, fields) || FirstBroken<BirthFields>(timeRules, fields)) {
            return std::nullopt;
        }
        return Split(MomentOfBirth(fields));
    } catch (const RuntimeError &) {
        return std::nullopt; // what cannot be read is still being typed
    }
}

} // namespace

std::optional<ClockAdvice> BirthClock::Advice(const BirthFields &fields) {
    const auto clock = HasCity(fields) ? ClockOf(fields) : std::nullopt;
    if (!clock) {
        return std::nullopt;
    }
    const store::Place place = PlaceOf(fields);
    StatedClock stated{*clock, ZoneOf(fields), std::nullopt,
                       LocalMeanTimeAt(place.lonDeg, place.lonMin, place.lonEW)};
    if (!fields.chosen.zone.empty() && fields.cbTimeZone == fields.chosen.zone) {
        stated.hours = SignedHours(fields.txt_VC_TimeDiff, fields.txt_VC_TimeDiffEW);
    }
    return AdviseOnClock(stated, fields.chosen.city, fields.chosen.countryId, known_->list);
}

const std::string &BirthClock::ZoneOf(const BirthFields &fields) {
    const std::string &city = fields.chosen.city;
    const std::int32_t countryId = fields.chosen.countryId;
    if (!known_ || known_->city != city || known_->countryId != countryId) {
        known_ = KnownPlace{city, countryId,
                            store::CityZones(connection_).ZoneOfBirthplace(city, PlaceOf(fields), countryId),
                            store::PlaceLists(connection_).ZonesOf(countryId)};
    }
    return known_->zone;
}

} // namespace kelvaro
