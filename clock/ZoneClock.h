#pragma once

#include "runtime/Moment.h"

#include <chrono>
#include <optional>
#include <string>

namespace kelvaro {

/// How far the clocks of a zone stood from Greenwich.
struct ClockOffset {
    std::chrono::seconds fromGreenwich{0}; ///< East positive
    /// Put forward for a part of the year. Where the law calls the time of the summer the standard and that
    /// of the winter the exception (Ireland, Namibia to 2017), the summer counts as summer all the same.
    bool isSummer = false;
    /// By the Sun of the town that the zone is named for, before there was a standard. Other towns had their
    /// own.
    bool isLocalMeanTime = false;

    friend bool operator==(const ClockOffset &, const ClockOffset &) = default;
};

/// What the clocks of a zone stood at when they showed a certain date and time.
struct ClockReading {
    /// A clock that is put back shows an hour twice, one that is put forward never shows one.
    enum class Shown { Once, Twice, Never };

    Shown shown = Shown::Once;
    ClockOffset offset;                     ///< in force; before the change where shown is not `Once`
    std::optional<ClockOffset> afterChange; ///< where shown is not `Once`

    friend bool operator==(const ClockReading &, const ClockReading &) = default;
};

/// What the machine's tz database records of a zone ("America/Chicago") for a date and time of its clocks.
/// Nothing where the machine has no such database, for a zone that it does not know, and after
/// `lastYearOfClocks` (2037). The first call for a zone reads its file.
std::optional<ClockReading> ReadClock(const std::string &zone, const CivilMoment &shown);

/// The release of the machine's tz database, "2025b"; empty where it has none or does not tell.
std::string ZoneRecordsRelease();

/// Whether the machine has a tz database at all.
bool HasZoneRecords();

} // namespace kelvaro
