#include "horoscope/BirthTimes.h"

#include "runtime/Numbers.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <string>

namespace kelvaro {

namespace {

/// Degrees East of Greenwich, West negative.
double EastDegrees(double degrees, const std::string &side) {
    return side == "W" ? -degrees : degrees;
}

/// Whole minutes and seconds of time, split at the point of the number's text: a whole number has no seconds.
struct TimeOfArc {
    std::int32_t minutes = 0;
    std::int32_t seconds = 0;
};

TimeOfArc TimeOf(double degrees) {
    // A number so small is written with an exponent, and its first digit would count as minutes.
    constexpr double smallestPlain = 1e-4;
    if (degrees * 4 < smallestPlain) {
        return {};
    }
    const std::string text = NumberText(degrees * 4);
    const auto point = text.find('.');
    TimeOfArc time;
    time.minutes = ToInt32(NumberFromText(text.substr(0, point)));
    if (point != std::string::npos) {
        time.seconds = ToInt32(std::trunc(NumberFromText(text.substr(point)) * 60));
    }
    return time;
}

Moment LocalMeanTimeOf(Moment moment, const Site &site) {
    const double place = EastDegrees(site.LonDeg + site.LonMin / 60, site.LonEW);
    const double meridian = EastDegrees(site.TimeDiff * 15, site.TimeDiffEW);
    const TimeOfArc difference = TimeOf(std::abs(place - meridian));
    const std::int32_t direction = place < meridian ? -1 : 1;
    return ToTheMinute(DateAdd(Interval::Second, direction * difference.seconds,
                               DateAdd(Interval::Minute, direction * difference.minutes, moment)));
}

/// The sunrise that opened the day of the clock moment. A birth in the minute of sunrise belongs to the day
/// before.
Moment SunriseBefore(Moment moment, const Site &site, SunTimes &sunTimes) {
    const Moment sunrise = sunTimes.SunriseOf(moment, site);
    return DateDiff(Interval::Minute, sunrise, moment) >= 1
               ? sunrise
               : sunTimes.SunriseOf(DateAdd(Interval::Day, -1, moment), site);
}

} // namespace

GhatiTimes ComputeLocalMeanTime(Moment birth, const Site &site, SunTimes &sunTimes) {
    GhatiTimes times;
    times.SummaryMoment = birth;
    times.LocalMeanTimeMoment = LocalMeanTimeOf(birth, site);
    times.SunriseForGhati = SunriseBefore(birth, site, sunTimes);
    times.IshtaGhatiMinutes = DateDiff(Interval::Minute, times.SunriseForGhati, times.LocalMeanTimeMoment);
    times.IshtaGhati = times.IshtaGhatiMinutes / 60 * 2.5;
    return times;
}

std::string ComputeIshtaGhati(const GhatiTimes &times) {
    std::array<char, 32> buffer{};
    std::snprintf(buffer.data(), buffer.size(), times.IshtaGhati < 0 ? "%08.4f" : "%07.4f", times.IshtaGhati);
    std::string text = buffer.data();
    text.at(text.find('.')) = ':';
    return text;
}

} // namespace kelvaro
