#include "panchanga/calendar/SolarCalendar.h"

#include "runtime/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <span>
#include <string_view>

namespace kelvaro {

namespace {

struct MonthRow {
    std::string_view name;
    std::int32_t days;
    double fraction; ///< of a day
};

// Days from the start of the year. The first row is the start itself.
constexpr std::array<MonthRow, 12> months{{
    {"Chaitra", 0, 0},
    {"Vaisakha", 30, 0.9255},
    {"Jyeshtha", 62, 0.3289},
    {"Ashadha", 93, 0.9394},
    {"Sravana", 125, 0.4094},
    {"Bhadrapada", 156, 0.4456},
    {"Asvina", 186, 0.9017},
    {"Karttika", 216, 0.8036},
    {"Margasira", 246, 0.3103},
    {"Pausha", 275, 0.6583},
    {"Magha", 305, 0.1128},
    {"Phalguna", 334, 0.9194},
}};

struct Correction {
    int yearFrom;
    int yearBefore;
    double fraction; ///< added to that of the table, days
    int weekdays;    ///< added to the weekday
    std::size_t candidates;
};

constexpr std::array<Correction, 4> corrections{{
    {1866, 1926, 0.7189, 4, 4},
    {1926, 1986, 0.2397, 3, 5},
    {1986, 2046, 0.7609, 1, 5},
    {2046, std::numeric_limits<int>::max(), 0.2814, 0, 5},
}};

/// The days of April on which a year may open.
constexpr std::array<int, 5> candidateDays{12, 13, 14, 15, 16};

const Correction *CorrectionOf(int year) {
    const auto *const found =
        std::find_if(corrections.begin(), corrections.end(), [=](const Correction &period) {
            return year >= period.yearFrom && year < period.yearBefore;
        });
    return found == corrections.end() ? nullptr : found;
}

struct Clock {
    std::int32_t hours;
    std::int32_t minutes;
};

/// The clock of a part of a day. Minutes, too, are counted by 24 to the hour.
Clock ClockOf(double partOfDay) {
    const double hours = FractionOf(partOfDay) * 24;
    const double minutes = FractionOf(hours) * 24;
    return {ToInt32(std::floor(hours)), ToInt32(std::floor(minutes))};
}

} // namespace

bool SolarCalendar::SolarDateOf(Moment moment, Moment today) {
    const int year = YearOf(moment);
    const Moment start = FindYearStart(year);
    const Moment startBefore = FindYearStart(year - 1);
    const Moment startAfter = FindYearStart(year + 1);
    const bool isFound = FindDateBetween(start, startAfter, moment, year) ||
                         FindDateBetween(startBefore, start, moment, year - 1);
    if (!isFound && KaliyugaYearOf(moment) == 0) {
        date_.kaliyugaYear = 0;
    }
    date_.kaliDays = KaliDays(today);
    return isFound;
}

bool SolarCalendar::FindDateBetween(Moment yearStart, Moment nextYearStart, Moment moment, int year) {
    if (moment < yearStart || moment >= nextYearStart) {
        return false;
    }
    SolarMonths(yearStart, nextYearStart, moment);
    date_.yearName = years_.KaliyugaYearName(year);
    date_.kaliyugaYear = KaliyugaYearOf(yearStart);
    return true;
}

Moment SolarCalendar::FindYearStart(int year) {
    years_.KaliyugaYearName(year);
    const Correction *correction = CorrectionOf(year);
    if (correction == nullptr) {
        return yearStart_;
    }
    const double sum = years_.YearRemain + correction->fraction;
    const std::string_view weekday =
        WeekdayNameOf(ToInt16(std::floor(sum) + years_.DayVal + correction->weekdays));
    for (const int day : std::span(candidateDays).first(correction->candidates)) {
        const Moment candidate = MomentOf({year, 4, day});
        if (WeekdayNameOf(WeekdayOf(candidate)) == weekday) {
            yearStart_ = candidate;
            break;
        }
    }
    yearFraction_ = FractionOf(sum);
    const Clock clock = ClockOf(yearFraction_);
    const SunTimes::Day day = sunTimes_.SunTimesOf(yearStart_);
    const Moment opening =
        DateAdd(Interval::Hour, clock.hours, DateAdd(Interval::Minute, clock.minutes, day.sunrise));
    if (opening >= day.sunset) {
        yearStart_ = day.nextSunrise;
    } else if (opening >= day.sunrise) {
        yearStart_ = day.sunrise;
    }
    return yearStart_;
}

void SolarCalendar::SolarMonths(Moment yearStart, Moment nextYearStart, Moment moment) {
    FindYearStart(YearOf(yearStart));
    for (std::size_t index = 0; index < months.size(); ++index) {
        monthStarts_.at(index) = MonthStart(yearStart, index);
    }
    monthStarts_.back() = nextYearStart;
    for (std::size_t index = 0; index < months.size(); ++index) {
        if (moment >= monthStarts_.at(index) && moment < monthStarts_.at(index + 1)) {
            date_.month = months.at(index).name;
            date_.monthStart = monthStarts_.at(index);
            SolarDayOf(index, moment);
            return;
        }
    }
}

Moment SolarCalendar::MonthStart(Moment yearStart, std::size_t index) {
    if (index == 0) {
        return sunTimes_.SunTimesOf(yearStart).sunrise;
    }
    const MonthRow &month = months.at(index);
    const double sum = yearFraction_ + month.fraction;
    const Clock clock = ClockOf(sum);
    Moment opening = DateAdd(Interval::Day, ToInt32(std::floor(sum)) + month.days, yearStart);
    opening = DateAdd(Interval::Hour, clock.hours, opening);
    opening = DateAdd(Interval::Minute, clock.minutes, opening);
    const SunTimes::Day day = sunTimes_.SunTimesOf(opening);
    return opening < day.sunset ? day.sunrise : day.nextSunrise;
}

void SolarCalendar::SolarDayOf(std::size_t index, Moment moment) {
    const Moment start = monthStarts_.at(index);
    const std::int32_t baseDay = std::abs(DateDiff(Interval::Day, moment, start));
    date_.monthLength = std::abs(DateDiff(Interval::Day, start, monthStarts_.at(index + 1)));
    const SunTimes::Day today = sunTimes_.SunTimesOf(moment);
    const Moment sunriseBefore = sunTimes_.SunriseOf(DateAdd(Interval::Day, -1, moment));
    if (moment >= today.sunrise && moment < today.nextSunrise) {
        date_.day = baseDay + 1;
    } else if (moment >= sunriseBefore && moment < today.sunrise) {
        date_.day = baseDay;
    }
    date_.day = std::max(date_.day, 1);
}

} // namespace kelvaro
