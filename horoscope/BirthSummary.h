#pragma once

namespace kelvaro {

struct Horoscope;

/// Fills the birth summary: the person, the clock times on four clocks, the place, and the almanac of the
/// moment.
///
/// To be run while the rasi numbers of the record are those of the Rasi chart. Raises what the astronomy, the
/// calendars and the database raise.
void FillBirthSummary(Horoscope &horoscope);

} // namespace kelvaro
