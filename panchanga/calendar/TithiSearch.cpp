#include "panchanga/calendar/TithiSearch.h"

#include "panchanga/calendar/LunarMonths.h"
#include "panchanga/clsTithi.h"

#include <utility>

namespace kelvaro {

namespace {

/// The clock from which both walks set out, whatever the time of the birth.
constexpr CivilClock searchClock{23, 55, 0};

/// The full or new moons counted in one direction: those of the sign of the first, each date once.
class Tally {
public:
    /// True when this one counts.
    bool Takes(std::string_view sign, Moment date) {
        if (count_ > 0 && (sign != sign_ || date == lastDate_)) {
            return false;
        }
        sign_ = sign;
        lastDate_ = date;
        ++count_;
        return true;
    }

    std::int16_t Count() const { return count_; }

private:
    std::string_view sign_;
    Moment lastDate_;
    std::int16_t count_ = 0;
};

} // namespace

TithiSearch::TithiSearch(ClsFindPlanetPosition &position, Site site, AyanamsaSettings ayanamsa,
                         Moment birthMoment)
    : position_(position), site_(std::move(site)), ayanamsa_(std::move(ayanamsa)), birthMoment_(birthMoment),
      firstHour_(MomentOf(Split(birthMoment).date, searchClock)) {}

void TithiSearch::Count(std::string_view tithi, TithiCount &count) {
    count.backward = 0;
    count.forward = 0;
    count.dates.clear();
    const std::string_view sign = SearchBackward(tithi, count);
    if (count.backward != 2) {
        count.forward = SearchForward(tithi, sign);
    }
}

/// Returns the sign of the last one found, counted or not.
std::string_view TithiSearch::SearchBackward(std::string_view tithi, TithiCount &count) {
    Tally tally;
    std::string_view found;
    for (std::int32_t hour = 0;; --hour) {
        LookAtHour(hour);
        if (Is(tithi)) {
            hour = LeaveTithi(tithi, -1, hour);
            found = Sign();
            const Moment date = DateOf(MomentOfHour(hour));
            if (tally.Takes(found, date)) {
                count.dates.push_back(date);
                count.sun = Sun();
            }
        }
        if (tally.Count() > 0 && found != Sign()) {
            count.backward = tally.Count();
            return found;
        }
    }
}

std::int16_t TithiSearch::SearchForward(std::string_view tithi, std::string_view backwardSign) {
    Tally tally;
    std::string_view found;
    for (std::int32_t hour = 0;; ++hour) {
        LookAtHour(hour);
        if (Is(tithi)) {
            // Taken before the tithi is left, so that in both directions it is the sign around its beginning.
            found = Sign();
            hour = LeaveTithi(tithi, 1, hour);
            tally.Takes(found, DateOf(MomentOfHour(hour)));
        }
        if (tally.Count() > 0 && found != Sign()) {
            return found == backwardSign ? tally.Count() : std::int16_t{0};
        }
    }
}

/// The first hour in that direction at which the tithi is another one.
std::int32_t TithiSearch::LeaveTithi(std::string_view tithi, std::int32_t step, std::int32_t hour) {
    while (Is(tithi)) {
        hour += step;
        LookAtHour(hour);
    }
    return hour;
}

Moment TithiSearch::WalkToBrightPratipada(Moment from) {
    Moment cursor = from;
    for (LookAt(cursor); !Is("Bright", "Pratipada"); LookAt(cursor)) {
        cursor = DateAdd(Interval::Hour, 1, cursor);
    }
    return cursor;
}

Moment TithiSearch::MomentOfHour(std::int32_t hour) const {
    return DateAdd(Interval::Hour, hour, firstHour_);
}

/// Walks set out from the first hour and leave out none, so an hour not yet found follows those found.
void TithiSearch::LookAtHour(std::int32_t hour) {
    std::vector<SunAndMoon> &found = hour > 0 ? on_ : back_;
    const auto place = static_cast<std::size_t>(hour > 0 ? hour - 1 : -hour);
    if (place < found.size()) {
        sky_ = found.at(place);
        position_.Recall(sky_);
    } else {
        LookAt(MomentOfHour(hour));
        found.push_back(sky_);
    }
}

void TithiSearch::LookAt(Moment moment) {
    sky_ = position_.FindSunAndMoonAt(moment, site_, ayanamsa_);
}

void TithiSearch::LookAtSunAndLagna(Moment moment) {
    position_.FindFixValuesAt(moment, site_, ayanamsa_);
    sky_ = {position_.FnFindSunPosition(), position_.FnFindLagnaPosition(), position_.FnFindAyanamsa()};
}

std::string_view TithiSearch::Sign() const {
    return SignOfSun(sky_.sun);
}

bool TithiSearch::Is(std::string_view tithi) const {
    return TithiNameOf(sky_.moon, sky_.sun) == tithi;
}

bool TithiSearch::Is(std::string_view side, std::string_view tithi) const {
    return TithiSideOf(sky_.moon, sky_.sun) == side && Is(tithi);
}

} // namespace kelvaro
