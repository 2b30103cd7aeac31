#include "horoscope/BirthTimes.h"

#include "horoscope/Horoscope.h"
#include "runtime/MomentText.h"
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

Moment LocalMeanTimeOf(const HoroscopeState &state) {
    const double place = EastDegrees(state.site.LonDeg + state.site.LonMin / 60, state.site.LonEW);
    const double meridian = EastDegrees(state.site.TimeDiff * 15, state.site.TimeDiffEW);
    const TimeOfArc difference = TimeOf(std::abs(place - meridian));
    const std::int32_t direction = place < meridian ? -1 : 1;
    return DateAdd(Interval::Second, direction * difference.seconds,
                   DateAdd(Interval::Minute, direction * difference.minutes, state.ghati.SummaryMoment));
}

/// The sunrise that opened the day of the clock moment. A birth in the minute of sunrise belongs to the day
/// before.
Moment SunriseBefore(Horoscope &horoscope, Moment moment) {
    const Moment sunrise = horoscope.calculators.sunTimes.SunriseOf(moment);
    if (DateDiff(Interval::Minute, sunrise, moment) >= 1) {
        return sunrise;
    }
    return horoscope.calculators.sunTimes.SunriseOf(DateAdd(Interval::Day, -1, moment));
}

/// "21:5417" for 21.5417 ghatis.
std::string GhatiText(double ghati) {
    std::array<char, 32> buffer{};
    std::snprintf(buffer.data(), buffer.size(), ghati < 0 ? "%08.4f" : "%07.4f", ghati);
    std::string text = buffer.data();
    text.at(text.find('.')) = ':';
    return text;
}

} // namespace

double ComputeLocalMeanTime(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    horoscope.forms.frm_UserDetails.txtlmt = MonthNameMomentText(LocalMeanTimeOf(state));
    // The text carries no seconds, and the reckoning goes on from what it says.
    state.ghati.LocalMeanTimeMoment = ReadMoment(horoscope.forms.frm_UserDetails.txtlmt);
    state.ghati.SunriseForGhati = SunriseBefore(horoscope, state.ghati.SummaryMoment);
    state.ghati.IshtaGhatiMinutes =
        DateDiff(Interval::Minute, state.ghati.SunriseForGhati, state.ghati.LocalMeanTimeMoment);
    state.ghati.IshtaGhati = state.ghati.IshtaGhatiMinutes / 60 * 2.5;
    return state.ghati.IshtaGhati;
}

void ComputeIshtaGhati(Horoscope &horoscope) {
    horoscope.forms.frm_UserDetails.txtIshtaGhati = GhatiText(ComputeLocalMeanTime(horoscope));
}

} // namespace kelvaro
