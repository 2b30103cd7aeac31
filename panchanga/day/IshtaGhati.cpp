#include "panchanga/day/IshtaGhati.h"

#include "runtime/Numbers.h"

#include <cmath>

namespace kelvaro {

namespace {

constexpr double ghatisOfHour = 2.5;
constexpr double minutesOfGhati = 24;

} // namespace

IshtaGhati IshtaGhatiOf(std::int32_t minutes) {
    constexpr double places = 10000;
    const double ghatis = std::round(minutes / 60.0 * ghatisOfHour * places) / places;
    const double vighatis = FractionOf(ghatis) * 60;
    const double parts = FractionOf(vighatis) * 60;
    return {ToInt32(std::floor(ghatis)), ToInt32(std::floor(vighatis)), ToInt32(std::floor(parts))};
}

Moment MomentAfterSunrise(Moment sunrise, double ghatis, double vighatis) {
    const double hours = ghatis * minutesOfGhati / 60;
    const double minutes = vighatis * minutesOfGhati / 60;
    Moment moment = DateAdd(Interval::Second, ToInt32(FractionOf(minutes) * 60), sunrise);
    moment = DateAdd(Interval::Minute, ToInt32(std::floor(minutes)), moment);
    moment = DateAdd(Interval::Minute, ToInt32(FractionOf(hours) * 60), moment);
    return DateAdd(Interval::Hour, ToInt32(std::floor(hours)), moment);
}

} // namespace kelvaro
