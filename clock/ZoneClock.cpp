#include "clock/ZoneClock.h"

#include "clock/ZoneRecords.h"
#include "system/System.h"

#include <fstream>
#include <map>

namespace kelvaro {

namespace {

/// The source of the records in one file. The records themselves do not tell their release, its first line
/// does.
constexpr const char *sourceOfRecords = "tzdata.zi";
constexpr std::string_view releaseMark = "# version ";

/// The periods of a zone, nothing where there is no such zone. What was read once is kept, as a survey of
/// saved charts asks for the same zones thousands of times.
const std::optional<ZonePeriods> &PeriodsOf(const std::string &zone) {
    thread_local std::map<std::string, std::optional<ZonePeriods>> known;
    const auto found = known.find(zone);
    return found != known.end()
               ? found->second
               : known.emplace(zone, ReadZonePeriods(ZoneRecordsFolder(), zone)).first->second;
}

std::chrono::local_seconds LocalTime(const CivilMoment &shown) {
    const std::chrono::year_month_day day{std::chrono::year{shown.date.year},
                                          std::chrono::month{static_cast<unsigned>(shown.date.month)},
                                          std::chrono::day{static_cast<unsigned>(shown.date.day)}};
    return std::chrono::local_days{day} + std::chrono::hours{shown.clock.hour} +
           std::chrono::minutes{shown.clock.minute} + std::chrono::seconds{shown.clock.second};
}

/// A period with its neighbours. The first and the last have themselves beside them.
struct Neighbours {
    const ZonePeriod &before, &period, &after;
};

Neighbours NeighboursOf(const ZonePeriods &periods, std::size_t at) {
    return {periods[at == 0 ? at : at - 1], periods[at], periods[at + 1 == periods.size() ? at : at + 1]};
}

/// Whether a period lies between two others whose time the law calls put back: the summer between two
/// winters. The records mark the winters then. A period of eleven months between two months of Ramadan is no
/// summer.
bool IsBetweenWinters(const Neighbours &each) {
    constexpr std::chrono::days longestSummer{9 * 31};
    if (each.period.end - each.period.begin > longestSummer) {
        return false;
    }
    const auto isWinter = [&each](const ZonePeriod &other) {
        return other.isMarked && other.fromGreenwich < each.period.fromGreenwich;
    };
    return isWinter(each.before) && isWinter(each.after);
}

/// Whether a marked period is put back and not forward: it lies between two that are ahead of it, of which
/// the records mark one at most. Clocks that came from another standard or went to one are ahead on one side
/// only.
bool IsPutBack(const Neighbours &each) {
    const bool isStandardBeside = !each.before.isMarked || !each.after.isMarked;
    return isStandardBeside && each.before.fromGreenwich > each.period.fromGreenwich &&
           each.after.fromGreenwich > each.period.fromGreenwich;
}

ClockOffset OffsetIn(const ZonePeriods &periods, std::size_t at) {
    const Neighbours each = NeighboursOf(periods, at);
    return {each.period.fromGreenwich, each.period.isMarked ? !IsPutBack(each) : IsBetweenWinters(each),
            each.period.abbreviation == "LMT"};
}

} // namespace

std::optional<ClockReading> ReadClock(const std::string &zone, const CivilMoment &shown) {
    if (shown.date.year > lastYearOfClocks) {
        return std::nullopt;
    }
    const std::optional<ZonePeriods> &periods = PeriodsOf(zone);
    if (!periods) {
        return std::nullopt;
    }
    const PeriodsOfTime found = FindPeriods(*periods, LocalTime(shown));
    ClockReading reading;
    reading.offset = OffsetIn(*periods, found.first);
    if (found.first != found.last) {
        reading.shown = found.isShown ? ClockReading::Shown::Twice : ClockReading::Shown::Never;
        reading.afterChange = OffsetIn(*periods, found.last);
    }
    return reading;
}

std::string ZoneRecordsRelease() {
    std::ifstream source(ZoneRecordsFolder() / sourceOfRecords);
    std::string line;
    std::getline(source, line);
    return line.starts_with(releaseMark) ? line.substr(releaseMark.size()) : std::string();
}

bool HasZoneRecords() {
    return PeriodsOf("UTC").has_value();
}

} // namespace kelvaro
