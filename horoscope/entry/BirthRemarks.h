#pragma once

#include "horoscope/entry/BirthEntry.h"

namespace kelvaro::store {
struct StoredChart;
}

namespace kelvaro {

// What the form of birth details says beside its fields, without a box. The words are of the form as it
// stands, whether or not its rules are kept.

struct Remark {
    std::string text;
    bool isWarning = false; ///< the user is about to get what is hardly meant
};

/// That a birth stored at noon now reads 12 AM. Empty where there is nothing to say, and so as soon as PM or
/// another hour is chosen.
Remark RemarkOnTime(const BirthFields &fields);

/// Which saved chart the form stands for, and what "&Save" will do to it.
Remark RemarkOnChart(const BirthFields &fields);

/// Which fields hold a text that no row of their list has.
struct UnlistedPlaces {
    bool country = false, city = false, zone = false;
};

/// The birth as "&OK" would read it: "Monday 5 March 1990, 07:35, Chennagiri 11 N 32 78 E 4, 5.5 hrs E". What
/// cannot be read yet, or is not chosen, is named as that.
std::string BirthAsUnderstood(const BirthFields &fields, const UnlistedPlaces &unlisted = {});

/// Name and date as they were typed, shortened, to know a form by: "Uma, 5 Mar 1990".
std::string NameOfBirth(const BirthFields &fields);

/// Date, time and place of a saved chart: "Monday 5 March 1990, 07:35, Chennagiri 11 N 32 78 E 4". Raises
/// ConversionError or OverflowError for a stored date or time that does not exist.
std::string ChartAtAGlance(const store::StoredChart &chart);

} // namespace kelvaro
