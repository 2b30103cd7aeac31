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

bool SolarCalendar::SolarDateOf(Moment moment, const Site &site, Moment today) {
    const int year = YearOf(moment);
    const Moment start = FindYearStart(year, site).sunrise;
    const Moment startBefore = FindYearStart(year - 1, site).sunrise;
    const Moment startAfter = FindYearStart(year + 1, site).sunrise;
    const bool isFound = FindDateBetween(start, startAfter, moment, year, site) ||
                         FindDateBetween(startBefore, start, moment, year - 1, site);
    if (!isFound && KaliyugaYearOf(moment) == 0) {
        date_.kaliyugaYear = 0;
    }
    date_.kaliDays = KaliDays(today);
    return isFound;
}

bool SolarCalendar::FindDateBetween(Moment yearStart, Moment nextYearStart, Moment moment, int year,
                                    const Site &site) {
    if (moment < yearStart || moment >= nextYearStart) {
        return false;
    }
    const MonthStarts starts = SolarMonths(yearStart, nextYearStart, site);
    for (std::size_t index = 0; index < months.size(); ++index) {
        const Moment start = starts.at(index);
        const Moment next = starts.at(index + 1);
        if (moment >= start && moment < next) {
            date_.month = months.at(index).name;
            date_.monthStart = start;
            date_.monthLength = std::abs(DateDiff(Interval::Day, start, next));
            date_.day = SolarDayOf(start, moment, site);
            break;
        }
    }
    date_.yearName = years_.KaliyugaYearName(year);
    date_.kaliyugaYear = KaliyugaYearOf(yearStart);
    return true;
}

SolarCalendar::YearStart SolarCalendar::FindYearStart(int year, const Site &site) {
    const store::KaliyugaYear &row = years_.RowOrLast(year);
    const Correction *correction = CorrectionOf(year);
    if (correction == nullptr) {
        return yearStart_;
    }
    const double sum = row.YearRemain + correction->fraction;
    const std::string_view weekday =
        WeekdayNameOf(ToInt16(std::floor(sum) + row.DayVal + correction->weekdays));
    for (const int day : std::span(candidateDays).first(correction->candidates)) {
        const Moment candidate = MomentOf({year, 4, day});
        if (WeekdayNameOf(WeekdayOf(candidate)) == weekday) {
            yearStart_.sunrise = candidate;
            break;
        }
    }
    yearStart_.fraction = FractionOf(sum);
    const Clock clock = ClockOf(yearStart_.fraction);
    const SunTimes::Day day = sunTimes_.SunTimesOf(yearStart_.sunrise, site);
    const Moment opening =
        DateAdd(Interval::Hour, clock.hours, DateAdd(Interval::Minute, clock.minutes, day.sunrise));
    yearStart_.sunrise = opening >= day.sunset ? day.nextSunrise : day.sunrise;
    return yearStart_;
}

/// The year is found again: one without a row, or without a fitting weekday, goes on from the year found
/// last, and its fraction is that of this finding.
SolarCalendar::MonthStarts SolarCalendar::SolarMonths(Moment yearStart, Moment nextYearStart,
                                                      const Site &site) {
    const YearStart opening{yearStart, FindYearStart(YearOf(yearStart), site).fraction};
    MonthStarts starts;
    for (std::size_t index = 0; index < months.size(); ++index) {
        starts.at(index) = MonthStart(opening, index, site);
    }
    starts.back() = nextYearStart;
    return starts;
}

Moment SolarCalendar::MonthStart(const YearStart &yearStart, std::size_t index, const Site &site) {
    if (index == 0) {
        return sunTimes_.SunTimesOf(yearStart.sunrise, site).sunrise;
    }
    const MonthRow &month = months.at(index);
    const double sum = yearStart.fraction + month.fraction;
    const Clock clock = ClockOf(sum);
    Moment opening = DateAdd(Interval::Day, ToInt32(std::floor(sum)) + month.days, yearStart.sunrise);
    opening = DateAdd(Interval::Hour, clock.hours, opening);
    opening = DateAdd(Interval::Minute, clock.minutes, opening);
    const SunTimes::Day day = sunTimes_.SunTimesOf(opening, site);
    return opening < day.sunset ? day.sunrise : day.nextSunrise;
}

/// Before sunrise it is the day of the date before. On the date of the month's start, which is its sunrise,
/// no moment of the month lies before that, so days count from 1.
std::int32_t SolarCalendar::SolarDayOf(Moment monthStart, Moment moment, const Site &site) {
    const std::int32_t days = DateDiff(Interval::Day, monthStart, moment);
    return moment >= sunTimes_.SunTimesOf(moment, site).sunrise ? days + 1 : days;
}

} // namespace kelvaro
