#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

/// The time from one change of a zone's clocks to the next.
struct ZonePeriod {
    std::chrono::sys_seconds begin, end;   ///< the first and the last period reach beyond every date
    std::chrono::seconds fromGreenwich{0}; ///< East positive
    /// By the records the clocks were not at their standard then, ahead of it or behind it.
    bool isMarked = false;
    std::string abbreviation; ///< "IST"

    friend bool operator==(const ZonePeriod &, const ZonePeriod &) = default;
};

/// All periods of a zone in their order, each beginning where the one before ends; never empty.
using ZonePeriods = std::vector<ZonePeriod>;

/// The last year for which the lists of changes tell how clocks are put.
inline constexpr int lastYearOfClocks = 2037;

/// The periods in the content of a compiled file of the tz database (RFC 8536), with the times of 64 bits.
/// What its last line says of the years beyond its list of changes is not read. Nothing where the content is
/// no such file, and where the list ends before `lastYearOfClocks` and leaves the years after it to that
/// line.
std::optional<ZonePeriods> ZonePeriodsIn(std::string_view content);

/// The periods of a zone ("America/Chicago") in a folder of such files. Nothing where there is no such zone.
std::optional<ZonePeriods> ReadZonePeriods(const std::filesystem::path &folder, std::string_view zone);

/// The places in the list of the period, or the two periods, in which the clocks of a zone showed a time, or
/// else of the two between which they passed over it.
struct PeriodsOfTime {
    std::size_t first = 0, last = 0; ///< equal where the time was shown once
    bool isShown = true;
};

PeriodsOfTime FindPeriods(const ZonePeriods &periods, std::chrono::local_seconds shown);

} // namespace kelvaro
