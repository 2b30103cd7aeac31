#include "panchanga/calendar/KaliyugaYears.h"

#include "runtime/MomentText.h"

#include <algorithm>
#include <array>

namespace kelvaro {

namespace {

constexpr int cycleYears = 60;
constexpr int yearBeforeTheCycle = 1986;

/// The row of the table for a year. Only one cycle is taken off, so the last year with a row is 2106.
int CycleNumberOf(int year) {
    int number = year - yearBeforeTheCycle;
    if (number > cycleYears) {
        number -= cycleYears;
    }
    while (number < 0) {
        number += cycleYears;
    }
    return number == 0 ? cycleYears : number;
}

struct Anchor {
    int year; ///< the first of its period; the last period has no end
    std::int32_t kaliyugaYear;
};

constexpr std::array<Anchor, 4> anchors{{{1866, 4967}, {1926, 5027}, {1986, 5087}, {2046, 5147}}};

constexpr std::int32_t kaliDaysAtOrigin = 1790030;

} // namespace

bool KaliyugaYears::Find(int year) {
    const auto row = table_.RowOf(CycleNumberOf(year));
    if (row) {
        lastFound_ = *row;
    }
    return row.has_value();
}

std::string KaliyugaYears::KaliyugaYearName(int year) {
    return Find(year) ? lastFound_.yearname : std::string();
}

const store::KaliyugaYear &KaliyugaYears::RowOrLast(int year) {
    Find(year);
    return lastFound_;
}

std::int32_t KaliyugaYearOf(Moment moment) {
    const int year = YearOf(moment);
    const auto anchor = std::find_if(anchors.rbegin(), anchors.rend(),
                                     [=](const Anchor &period) { return year >= period.year; });
    return anchor == anchors.rend() ? 0 : year - anchor->year + anchor->kaliyugaYear;
}

std::int32_t KaliDays(Moment today) {
    return DateDiff(Interval::Day, Moment(), today) + kaliDaysAtOrigin;
}

std::string_view WeekdayNameOf(int number) {
    while (number >= 8) {
        number -= 7;
    }
    return number >= 1 ? WeekdayName(number) : std::string_view();
}

} // namespace kelvaro
