#include "panchanga/calendar/TithiSearch.h"

#include "panchanga/calendar/LunarMonths.h"
#include "panchanga/calendar/TithiOf.h"

namespace kelvaro {

namespace {

/// The clock from which both walks set out, whatever the time of the birth.
constexpr CivilClock searchClock{23, 55, 0};

Moment HoursFrom(Moment cursor, std::int32_t hours) {
    return DateAdd(Interval::Hour, hours, cursor);
}

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

void TithiSearch::Count(std::string_view tithi, Moment birthMoment, TithiCount &count) {
    const Moment first = MomentOf(Split(birthMoment).date, searchClock);
    count.backward = 0;
    count.forward = 0;
    count.dates.clear();
    const std::string_view sign = SearchBackward(tithi, first, count);
    if (count.backward != 2) {
        count.forward = SearchForward(tithi, first, sign);
    }
}

/// Returns the sign of the last one found, counted or not.
std::string_view TithiSearch::SearchBackward(std::string_view tithi, Moment first, TithiCount &count) {
    Tally tally;
    std::string_view found;
    for (Moment cursor = first;; cursor = HoursFrom(cursor, -1)) {
        LookAt(cursor);
        if (Is(tithi)) {
            cursor = LeaveTithi(tithi, -1, cursor);
            found = Sign();
            if (tally.Takes(found, DateOf(cursor))) {
                count.dates.push_back(DateOf(cursor));
                count.sun = Sun();
            }
        }
        if (tally.Count() > 0 && found != Sign()) {
            count.backward = tally.Count();
            return found;
        }
    }
}

std::int16_t TithiSearch::SearchForward(std::string_view tithi, Moment first, std::string_view backwardSign) {
    Tally tally;
    std::string_view found;
    for (Moment cursor = first;; cursor = HoursFrom(cursor, 1)) {
        LookAt(cursor);
        if (Is(tithi)) {
            // Taken before the tithi is left, so that in both directions it is the sign around its beginning.
            found = Sign();
            cursor = LeaveTithi(tithi, 1, cursor);
            tally.Takes(found, DateOf(cursor));
        }
        if (tally.Count() > 0 && found != Sign()) {
            return found == backwardSign ? tally.Count() : std::int16_t{0};
        }
    }
}

/// The first hour, in steps of that many, at which the tithi is another one.
Moment TithiSearch::LeaveTithi(std::string_view tithi, std::int32_t hours, Moment cursor) {
    while (Is(tithi)) {
        cursor = HoursFrom(cursor, hours);
        LookAt(cursor);
    }
    return cursor;
}

Moment TithiSearch::WalkToBrightPratipada(Moment from) {
    Moment cursor = from;
    for (LookAt(cursor); !Is("Bright", "Pratipada"); LookAt(cursor)) {
        cursor = HoursFrom(cursor, 1);
    }
    return cursor;
}

void TithiSearch::LookAtSunAndLagna(Moment cursor) {
    const PlacePositions::SunAndLagna places = positions_.SunAndLagnaAt(cursor);
    sky_ = {places.sun, places.lagna};
}

std::string_view TithiSearch::Sign() const {
    return SignOfSun(sky_.sun);
}

bool TithiSearch::Is(std::string_view tithi) {
    return TithiNameOf(tithi_, sky_.moon, sky_.sun) == tithi;
}

bool TithiSearch::Is(std::string_view side, std::string_view tithi) {
    return TithiSideOf(tithi_, sky_.moon, sky_.sun) == side && Is(tithi);
}

} // namespace kelvaro
