#pragma once

#include <optional>

namespace kelvaro {

/// Days from 1900 January 0.5 (Julian Day 2415020.0) to 0 hours of a civil date; 1900 January 1 gives 0.5.
///
/// The Gregorian calendar counts from 1582 October 5 on. January and February of 1583 count as Julian, since
/// they belong to the year before in the count. There is no year zero: nothing is returned for it. Raises
/// OverflowError for a year outside 16 bits.
std::optional<double> DayNumberOf(double year, double month, double day);

} // namespace kelvaro
