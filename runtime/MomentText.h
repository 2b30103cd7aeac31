#pragma once

#include "runtime/Moment.h"

#include <string>
#include <string_view>

namespace kelvaro {

// The date and clock texts of the program. They are English and fixed; the machine's locale plays no part.

/// Reads a date, or a date and a clock time: "14/07/1965", "14/Jul/1965", "14/July/1965 14:15", "14/7/1965
/// 14:15: 00", "14/Jul/1965 02:15:30 PM". The day comes first, months are numbers or English names in any
/// case, blanks between the parts do not count. An hour with a marker runs from 1 to 12, one without from 0
/// to 23; a marker beside a 24-hour clock time of 13 to 23 is passed over. Raises ConversionError, which
/// quotes the text, where it is no date or the date does not exist.
Moment ReadMoment(std::string_view text);

/// The number 1 to 12 of a month from its number or its English name, whole or its first three letters, in
/// any case. Raises ConversionError for any other text.
int ReadMonth(std::string_view text);

/// "14/07/1965"
std::string DateText(Moment moment);

/// "14/Jul/1965"
std::string MonthNameDateText(Moment moment);

/// "Wednesday 14 July 1965"
std::string LongDateText(Moment moment);

/// "02:15 PM"; midnight is "12:00 AM" and noon "12:00 PM". Seconds are left out.
std::string ClockText(Moment moment);

/// "14/07/1965 02:15 PM"
std::string MomentText(Moment moment);

/// "14/Jul/1965 02:15 PM"
std::string MonthNameMomentText(Moment moment);

/// "14:15:00"
std::string TimingText(Moment moment);

/// True from midnight until before noon: the clock reads "AM".
bool IsBeforeNoon(Moment moment);

/// "Sunday" for 1 to "Saturday" for 7. Raises ConversionError outside.
std::string_view WeekdayName(int weekday);

} // namespace kelvaro
