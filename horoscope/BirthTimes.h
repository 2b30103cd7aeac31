#pragma once

#include "horoscope/record/HoroscopeState.h"
#include "panchanga/day/SunTimes.h"

#include <string>

namespace kelvaro {

/// The local mean time of a birth, to the minute, and the Ishta Ghati: the time from the sunrise that opened
/// its day to that local mean time, in ghatis of 24 minutes. It is negative where the clock is past sunrise
/// and the local mean time is not yet. `birth` is a civil moment at the site. Raises what `clsSunrise`
/// raises.
GhatiTimes ComputeLocalMeanTime(Moment birth, const Site &site, SunTimes &sunTimes);

/// The Ishta Ghati as the summary words it, "21:5417" for 21.5417 ghatis.
std::string ComputeIshtaGhati(const GhatiTimes &times);

} // namespace kelvaro
