#include "horoscope/entry/BirthplaceClock.h"

#include "horoscope/entry/BirthEntry.h"
#include "runtime/Numbers.h"
#include "runtime/Texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace kelvaro {

namespace {

constexpr double secondsOfHour = 3600;
constexpr std::size_t longestCity = 48; // characters, so that the words around it can be seen

double HoursOf(const ClockOffset &offset) {
    return static_cast<double>(offset.fromGreenwich.count()) / secondsOfHour;
}

/// The nearest whole minute, which is what a zone of the tables can state.
std::chrono::minutes NearestMinute(const ClockOffset &offset) {
    return std::chrono::round<std::chrono::minutes>(offset.fromGreenwich);
}

/// The day stays that of the records: until 1844 Manila had the one of America, until 1867 Alaska that of
/// Asia.
void TakeLocalMeanTime(ClockOffset &offset, std::chrono::seconds localMeanTime) {
    if (offset.isLocalMeanTime) {
        offset.fromGreenwich =
            localMeanTime + std::chrono::round<std::chrono::days>(offset.fromGreenwich - localMeanTime);
    }
}

std::string Counted(std::int64_t count, std::string_view what) {
    std::string text = std::to_string(count);
    return text.append(" ").append(what).append(count == 1 ? " " : "s ");
}

std::string SideOf(const ClockOffset &offset) {
    return offset.fromGreenwich.count() < 0 ? "W" : "E";
}

/// "5.5 hrs E" as in the lists, or "5 hours 53 minutes 28 seconds E" for what is no quarter of an hour.
std::string OffsetText(const ClockOffset &offset) {
    constexpr int quarter = 900;
    constexpr int hour = 3600;
    constexpr int minute = 60;
    const std::int64_t seconds = std::abs(offset.fromGreenwich.count());
    const std::string side = SideOf(offset);
    if (seconds % quarter == 0) {
        return NumberText(std::abs(HoursOf(offset))) + " hrs " + side;
    }
    return Counted(seconds / hour, "hour") + Counted(seconds % hour / minute, "minute") +
           (seconds % minute == 0 ? "" : Counted(seconds % minute, "second")) + side;
}

std::string_view KindText(const ClockOffset &offset) {
    if (offset.isLocalMeanTime) {
        return ", local mean time";
    }
    return offset.isSummer ? ", summer time" : "";
}

std::string DayText(const CivilDate &date) {
    std::string text = std::to_string(date.day);
    text.append(" ").append(monthChoices.at(static_cast<std::size_t>(date.month - 1))).append(" ");
    return text.append(std::to_string(date.year));
}

std::string ClockText(const CivilClock &clock) {
    return TwoDigitText(clock.hour) + ":" + TwoDigitText(clock.minute);
}

/// "5 hrs W, summer time"
std::string OffsetAndKind(const ClockOffset &offset) {
    return OffsetText(offset).append(KindText(offset));
}

std::string RecordText(const ClockReading &reading, const CivilMoment &shown, const std::string &city) {
    std::string text = "Clocks in ";
    text.append(OneLine(city, longestCity));
    if (reading.shown == ClockReading::Shown::Once) {
        text.append(" stood at ")
            .append(OffsetText(reading.offset))
            .append(" on ")
            .append(DayText(shown.date));
        return text.append(KindText(reading.offset));
    }
    const bool isTwice = reading.shown == ClockReading::Shown::Twice;
    text.append(isTwice ? " showed " : " never showed ").append(ClockText(shown.clock));
    text.append(isTwice ? " twice on " : " on ").append(DayText(shown.date));
    text.append(isTwice ? ", first at " : ": they were put from ").append(OffsetAndKind(reading.offset));
    return text.append(isTwice ? ", then at " : " to ").append(OffsetAndKind(*reading.afterChange));
}

std::string HoursText(double hours) {
    return NumberText(std::abs(hours)) + " hrs " + (hours < 0 ? "W" : "E");
}

/// A row named for the summer, for the half of the year when clocks are put forward.
bool IsForSummer(const store::Zone &zone) {
    constexpr std::array<std::string_view, 2> words{"Summer", "Daylight"};
    return std::ranges::any_of(
        words, [&zone](std::string_view word) { return zone.place.find(word) != std::string::npos; });
}

/// The first row with the offset that is meant for the season, else the first row with the offset.
std::optional<std::int32_t> RowFor(const ClockOffset &offset, const std::vector<store::Zone> &list) {
    std::optional<std::int32_t> row;
    for (const store::Zone &zone : list) {
        if (!AreHoursOf(offset, SignedHours(zone.hours, zone.direction))) {
            continue;
        }
        if (IsForSummer(zone) == offset.isSummer) {
            return zone.number;
        }
        if (!row) {
            row = zone.number;
        }
    }
    return row;
}

/// The form of a zone to add, to the minute, which is what it can state.
store::ZoneFields NewZone(const ClockOffset &offset, const std::string &city, std::int32_t countryId) {
    constexpr int hour = 60;
    const auto minutes = std::chrono::abs(NearestMinute(offset)).count();
    store::ZoneFields zone;
    zone.countryId = countryId;
    zone.place = city + (offset.isLocalMeanTime ? " Local Mean Time"
                         : offset.isSummer      ? " Summer Time"
                                                : " Time");
    zone.hours = std::to_string(minutes / hour);
    zone.minutes = std::to_string(minutes % hour);
    zone.direction = SideOf(offset);
    return zone;
}

} // namespace

std::chrono::seconds LocalMeanTimeAt(double degrees, double minutes, std::string_view direction) {
    constexpr double minutesOfDegree = 60;
    constexpr double secondsOfDegree = 240;
    constexpr double halfDay = 12 * secondsOfHour; // a damaged chart can lie anywhere
    const std::chrono::duration<double> size{
        std::clamp((degrees + minutes / minutesOfDegree) * secondsOfDegree, 0.0, halfDay)};
    const auto seconds = std::chrono::round<std::chrono::seconds>(size);
    return direction == "W" ? -seconds : seconds;
}

double SignedHours(double hours, std::string_view direction) {
    return direction == "W" ? -hours : hours;
}

bool AreHoursOf(const ClockOffset &offset, double hours) {
    constexpr double halfOfLastPlace = 0.005;
    constexpr double roundingOfNumbers = 1e-9;
    const auto isStated = [hours](const ClockOffset &stood) {
        return std::abs(HoursOf(stood) - hours) <= halfOfLastPlace + roundingOfNumbers;
    };
    return isStated(offset) || isStated({NearestMinute(offset)});
}

std::optional<ClockCheck> CheckClock(const StatedClock &stated) {
    auto reading = ReadClock(stated.zone, stated.shown);
    if (!reading) {
        return std::nullopt;
    }
    TakeLocalMeanTime(reading->offset, stated.localMeanTime);
    if (reading->afterChange) {
        TakeLocalMeanTime(*reading->afterChange, stated.localMeanTime);
    }
    ClockCheck check{*reading, reading->offset, false, stated.shown.date.year >= firstSureYear};
    if (stated.hours) {
        const bool isAfter = !AreHoursOf(reading->offset, *stated.hours) && reading->afterChange &&
                             AreHoursOf(*reading->afterChange, *stated.hours);
        if (isAfter) {
            check.offset = *reading->afterChange;
        }
        check.agrees = isAfter || AreHoursOf(reading->offset, *stated.hours);
    }
    return check;
}

std::optional<ClockAdvice> AdviseOnClock(const StatedClock &stated, const std::string &city,
                                         std::int32_t countryId, const std::vector<store::Zone> &list) {
    const auto check = CheckClock(stated);
    if (!check) {
        return std::nullopt;
    }
    const bool differs = stated.hours && !check->agrees;
    ClockAdvice advice;
    advice.text = RecordText(check->reading, stated.shown, city);
    advice.isWarning = differs || check->reading.shown == ClockReading::Shown::Never;
    if (differs) {
        advice.text.append("; the chosen zone says ").append(HoursText(*stated.hours));
        advice.text.append(": an hour changes the Lagna by half a sign");
    }
    advice.text.append(".");
    if (!check->isSure) {
        advice.text.append(" Records from before ")
            .append(std::to_string(firstSureYear))
            .append(" are less certain.");
    }
    if (!check->agrees) {
        advice.zoneNumber = RowFor(check->offset, list);
        if (!advice.zoneNumber) {
            advice.newZone = NewZone(check->offset, city, countryId);
            advice.text += " The list of time zones has no such offset.";
        }
    }
    return advice;
}

} // namespace kelvaro
