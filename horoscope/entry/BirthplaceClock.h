#pragma once

#include "clock/ZoneClock.h"
#include "runtime/Moment.h"
#include "store/masters/PlaceLists.h"
#include "store/masters/TimeZoneMaster.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

// What the clocks of the birthplace stood at, beside what the user has chosen. The program advises and never
// chooses: it knows the records, the family knows the clock.

/// Records of earlier years are gathered from newspapers and orders and less certain.
inline constexpr int firstSureYear = 1970;

/// The clock of a birth as it was stated.
struct StatedClock {
    CivilMoment shown;
    std::string zone;            ///< "America/Chicago"
    std::optional<double> hours; ///< from Greenwich, East positive; none where no zone is chosen yet
    /// By the Sun of the birthplace. The records have the one of the town that a zone is named for.
    std::chrono::seconds localMeanTime{0};
};

/// The local mean time of a longitude: from Greenwich, East positive, four minutes a degree, up to half a
/// day.
std::chrono::seconds LocalMeanTimeAt(double degrees, double minutes, std::string_view direction);

/// Hours from Greenwich, East positive, of an offset with its letter.
double SignedHours(double hours, std::string_view direction);

/// Whether stated hours, which the tables take to the minute and keep with two places, are an offset of the
/// records.
bool AreHoursOf(const ClockOffset &offset, double hours);

/// What the records say of a stated clock.
struct ClockCheck {
    ClockReading reading;
    /// The offset that was stated where the clock stood at it; else the one in force before the change.
    ClockOffset offset;
    bool agrees =
        false; ///< the clock stood at the stated hours; where it showed a time twice, once of the two
    bool isSure = true;
};

/// Nothing where the machine's records do not know the zone or the year.
std::optional<ClockCheck> CheckClock(const StatedClock &stated);

/// The clock in words for a remark, and the way out where the chosen zone differs or none is chosen yet.
struct ClockAdvice {
    std::string text;
    bool isWarning = false; ///< the chosen zone has another offset, or no clock showed that time
    std::optional<std::int32_t> zoneNumber{};   ///< the row of the country's list to take
    std::optional<store::ZoneFields> newZone{}; ///< what to add where the list has no such row
};

/// Nothing where `CheckClock` finds nothing.
std::optional<ClockAdvice> AdviseOnClock(const StatedClock &stated, const std::string &city,
                                         std::int32_t countryId, const std::vector<store::Zone> &list);

} // namespace kelvaro
