#include "runtime/Moment.h"

#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <string>

namespace kelvaro {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::int64_t secondsInDay = 86400;
constexpr sys_days origin{std::chrono::December / 30 / 1899};
constexpr std::int64_t firstDay = (sys_days{std::chrono::January / 1 / 100} - origin).count();
constexpr std::int64_t lastDay = (sys_days{std::chrono::December / 31 / 9999} - origin).count();

void RequireDateRange(double timeline) {
    if (!(timeline >= static_cast<double>(firstDay) && timeline < static_cast<double>(lastDay + 1))) {
        throw OverflowError("Overflow: a date outside the years 100 to 9999");
    }
}

/// The time line in whole seconds: the one place that rounds.
std::int64_t SecondsOf(Moment moment) {
    const double timeline = moment.Timeline();
    RequireDateRange(timeline);
    const double day = std::floor(timeline);
    const double clock = std::abs(moment.Serial() - std::trunc(moment.Serial()));
    return static_cast<std::int64_t>(day) * secondsInDay +
           std::llround(clock * static_cast<double>(secondsInDay));
}

struct DayAndSecond {
    std::int64_t day;
    std::int64_t second;
};

std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) {
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

DayAndSecond DayAndSecondOf(Moment moment) {
    const std::int64_t seconds = SecondsOf(moment);
    const std::int64_t day = FloorDivide(seconds, secondsInDay);
    return {day, seconds - day * secondsInDay};
}

/// A serial number from a whole day and the fraction of its clock, 0 to 1.
Moment MomentOfDay(double day, double clock) {
    if (day >= 0) {
        return Moment(day + clock);
    }
    // A clock a hair before midnight can round away to a whole number. Before the origin that number is the
    // date before, while the moment is nearest to midnight of the date after.
    const double serial = day - clock;
    return Moment(serial == day - 1 ? day + 1 : serial);
}

Moment MomentOfSeconds(std::int64_t seconds) {
    const std::int64_t day = FloorDivide(seconds, secondsInDay);
    RequireDateRange(static_cast<double>(day));
    return MomentOfDay(static_cast<double>(day),
                       static_cast<double>(seconds - day * secondsInDay) / static_cast<double>(secondsInDay));
}

year_month_day CalendarDay(std::int64_t day) {
    if (day < firstDay || day > lastDay) {
        throw OverflowError("Overflow: a date outside the years 100 to 9999");
    }
    return year_month_day{origin + days{day}};
}

Moment AddMonths(std::int64_t months, Moment moment) {
    const DayAndSecond start = DayAndSecondOf(moment);
    const year_month_day date = CalendarDay(start.day);
    const std::int64_t total =
        std::int64_t{static_cast<int>(date.year())} * 12 + static_cast<unsigned>(date.month()) - 1 + months;
    const std::int64_t year = FloorDivide(total, 12);
    if (year < 100 || year > 9999) {
        throw OverflowError("Overflow: a date outside the years 100 to 9999");
    }
    const auto month = std::chrono::year{static_cast<int>(year)} /
                       std::chrono::month{static_cast<unsigned>(total - year * 12 + 1)};
    const std::chrono::day day = std::min(date.day(), (month / std::chrono::last).day());
    const std::int64_t moved = (sys_days{month / day} - origin).count();
    return PlusDays(moment, static_cast<double>(moved - start.day));
}

} // namespace

Moment Moment::AtTimeline(double days) {
    const double day = std::floor(days);
    return MomentOfDay(day, days - day);
}

double Moment::Timeline() const {
    const double day = std::trunc(serial_);
    return day + std::abs(serial_ - day);
}

CivilMoment Split(Moment moment) {
    const DayAndSecond parts = DayAndSecondOf(moment);
    const year_month_day date = CalendarDay(parts.day);
    const int second = static_cast<int>(parts.second);
    return {{static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
             static_cast<int>(static_cast<unsigned>(date.day()))},
            {second / 3600, second / 60 % 60, second % 60}};
}

Moment MomentOf(const CivilDate &date, const CivilClock &clock) {
    // The calendar types keep a month and a day in one byte, so their ranges are looked at before.
    const bool inRange = date.year >= 100 && date.year <= 9999 && date.month >= 1 && date.month <= 12 &&
                         date.day >= 1 && date.day <= 31;
    const year_month_day day{std::chrono::year{date.year},
                             std::chrono::month{static_cast<unsigned>(date.month)},
                             std::chrono::day{static_cast<unsigned>(date.day)}};
    if (!inRange || !day.ok()) {
        throw ConversionError("Type mismatch: there is no date " + std::to_string(date.day) + "/" +
                              std::to_string(date.month) + "/" + std::to_string(date.year));
    }
    if (clock.hour < 0 || clock.hour > 23 || clock.minute < 0 || clock.minute > 59 || clock.second < 0 ||
        clock.second > 59) {
        throw ConversionError("Type mismatch: there is no clock time " + std::to_string(clock.hour) + ":" +
                              std::to_string(clock.minute) + ":" + std::to_string(clock.second));
    }
    const std::int64_t seconds = (clock.hour * 60 + clock.minute) * 60 + clock.second;
    return MomentOfSeconds((sys_days{day} - origin).count() * secondsInDay + seconds);
}

Moment DateOf(Moment moment) {
    return Moment(static_cast<double>(DayAndSecondOf(moment).day));
}

Moment ToTheMinute(Moment moment) {
    const CivilMoment parts = Split(moment);
    return MomentOf(parts.date, {parts.clock.hour, parts.clock.minute, 0});
}

Moment Join(Moment date, Moment clock) {
    return MomentOfSeconds(DayAndSecondOf(date).day * secondsInDay + DayAndSecondOf(clock).second);
}

int YearOf(Moment moment) {
    return Split(moment).date.year;
}

int WeekdayOf(Moment moment) {
    const std::chrono::weekday weekday{origin + days{DayAndSecondOf(moment).day}};
    return static_cast<int>(weekday.c_encoding()) + 1;
}

Moment DateAdd(Interval interval, std::int32_t count, Moment moment) {
    const std::int64_t wide = count;
    switch (interval) {
    case Interval::Year:
        return AddMonths(wide * 12, moment);
    case Interval::Month:
        return AddMonths(wide, moment);
    case Interval::Day:
        return PlusDays(moment, static_cast<double>(count));
    case Interval::Hour:
        return MomentOfSeconds(SecondsOf(moment) + wide * 3600);
    case Interval::Minute:
        return MomentOfSeconds(SecondsOf(moment) + wide * 60);
    case Interval::Second:
        return MomentOfSeconds(SecondsOf(moment) + wide);
    }
    return moment;
}

Moment PlusDays(Moment moment, double days) {
    const double day = std::trunc(moment.Serial());
    const double clock = std::abs(moment.Serial() - day);
    const double wholeDays = std::floor(days);
    double movedClock = clock + (days - wholeDays);
    double movedDay = day + wholeDays;
    if (movedClock >= 1) {
        movedClock -= 1;
        movedDay += 1;
    }
    RequireDateRange(movedDay);
    return MomentOfDay(movedDay, movedClock);
}

std::int32_t DateDiff(Interval interval, Moment from, Moment to) {
    const CivilDate first = Split(from).date;
    const CivilDate last = Split(to).date;
    const auto boundaries = [&](std::int64_t seconds) {
        const std::int64_t crossed =
            FloorDivide(SecondsOf(to), seconds) - FloorDivide(SecondsOf(from), seconds);
        return ToInt32(static_cast<double>(crossed));
    };
    switch (interval) {
    case Interval::Year:
        return last.year - first.year;
    case Interval::Month:
        return (last.year - first.year) * 12 + last.month - first.month;
    case Interval::Day:
        return boundaries(secondsInDay);
    case Interval::Hour:
        return boundaries(3600);
    case Interval::Minute:
        return boundaries(60);
    case Interval::Second:
        return boundaries(1);
    }
    return 0;
}

} // namespace kelvaro
