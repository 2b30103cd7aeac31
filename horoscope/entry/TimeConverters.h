#pragma once

#include "astronomy/clsFindSunrise.h"
#include "horoscope/entry/BirthEntry.h"

#include <variant>

namespace kelvaro {

/// The rules of the two converters, in their order. An hour or a minute that makes no clock time, 13 PM or a
/// text, is no correct time.
extern const std::array<Rule<BirthFields>, 12> clockTimeRules;
extern const std::array<Rule<BirthFields>, 12> ghatiRules;

/// The two converters between a clock time and Ishta Ghati, the time since sunrise.
///
/// They take the fields of a birth: date, time and a place with its zone, chosen by `ChooseCountry`,
/// `ChooseCity` and `ChooseZone`. Both return what is to be told when a rule is broken, and the text of
/// the result otherwise. Both raise ConversionError for a number or a date that cannot be read, and
/// what the search for the sunrise raises.
class TimeConverters {
public:
    using Result = std::variant<Notice, std::string>;

    /// "Ishta Ghati : 21:2:30" for a clock time. A birth before the sunrise of its date counts from the
    /// sunrise of the day before.
    Result IshtaGhatiOfBirthTime(const BirthFields &fields);

    /// "Birth Time : 02:15 PM" for the ghatis in `cbHour`, 0 to 60, and the vighatis in `cbMins`, 0 to 59,
    /// after the sunrise of the date. The date itself has no rule. Both take decimals. A third part that is
    /// entered so, 21:2:30 as 21 and 2.5, comes back to the minute; without it the clock, which shows no
    /// seconds, can read a minute less.
    Result BirthTimeOfIshtaGhati(const BirthFields &fields);

private:
    clsFindSunrise sunrise_;
};

} // namespace kelvaro
