#include "clock/ZoneClock.h"

#include <date/tz.h>

#include <fstream>
#include <stdexcept>

namespace kelvaro {

namespace {

/// The library does not tell the release of a compiled database. The same package carries its source in one
/// file, whose first line does.
constexpr const char *sourceOfRecords = "/usr/share/zoneinfo/tzdata.zi";
constexpr std::string_view releaseMark = "# version ";

/// Nothing where the machine has no database or the database has no such zone.
const date::time_zone *FindZone(const std::string &name) {
    try {
        return date::locate_zone(name);
    } catch (const std::runtime_error &) {
        return nullptr;
    }
}

date::local_seconds LocalTime(const CivilMoment &shown) {
    const date::year_month_day day{date::year{shown.date.year},
                                   date::month{static_cast<unsigned>(shown.date.month)},
                                   date::day{static_cast<unsigned>(shown.date.day)}};
    return date::local_days{day} + std::chrono::hours{shown.clock.hour} +
           std::chrono::minutes{shown.clock.minute} + std::chrono::seconds{shown.clock.second};
}

/// Whether a period lies between two others whose time the law calls put back: the summer between two
/// winters. The records mark the winters then. A period of eleven months between two months of Ramadan is no
/// summer.
bool IsBetweenWinters(const date::time_zone &zone, const date::sys_info &period) {
    constexpr date::days longestSummer{9 * 31};
    if (period.end - period.begin > longestSummer) {
        return false;
    }
    const auto isWinter = [&period](const date::sys_info &other) {
        return other.save != std::chrono::minutes{0} && other.offset < period.offset;
    };
    return isWinter(zone.get_info(period.begin - std::chrono::seconds{1})) &&
           isWinter(zone.get_info(period.end));
}

/// Whether a marked period is put back and not forward: it lies between two that are ahead of it, of which
/// the records mark one at most. Clocks that came from another standard or went to one are ahead on one side
/// only.
bool IsPutBack(const date::time_zone &zone, const date::sys_info &period) {
    const date::sys_info before = zone.get_info(period.begin - std::chrono::seconds{1});
    const date::sys_info after = zone.get_info(period.end);
    const bool isStandardBeside =
        before.save == std::chrono::minutes{0} || after.save == std::chrono::minutes{0};
    return isStandardBeside && before.offset > period.offset && after.offset > period.offset;
}

bool IsSummer(const date::time_zone &zone, const date::sys_info &period) {
    return period.save == std::chrono::minutes{0} ? IsBetweenWinters(zone, period) : !IsPutBack(zone, period);
}

ClockOffset OffsetIn(const date::time_zone &zone, const date::sys_info &period) {
    return {period.offset, IsSummer(zone, period), period.abbrev == "LMT"};
}

} // namespace

std::optional<ClockReading> ReadClock(const std::string &zone, const CivilMoment &shown) {
    if (shown.date.year > lastYearOfClocks) {
        return std::nullopt;
    }
    const date::time_zone *const found = FindZone(zone);
    if (found == nullptr) {
        return std::nullopt;
    }
    const date::local_info info = found->get_info(LocalTime(shown));
    ClockReading reading;
    reading.offset = OffsetIn(*found, info.first);
    if (info.result != date::local_info::unique) {
        reading.shown = info.result == date::local_info::ambiguous ? ClockReading::Shown::Twice
                                                                   : ClockReading::Shown::Never;
        reading.afterChange = OffsetIn(*found, info.second);
    }
    return reading;
}

std::string ZoneRecordsRelease() {
    std::ifstream source(sourceOfRecords);
    std::string line;
    std::getline(source, line);
    return line.starts_with(releaseMark) ? line.substr(releaseMark.size()) : std::string();
}

bool HasZoneRecords() {
    return FindZone("UTC") != nullptr;
}

} // namespace kelvaro
