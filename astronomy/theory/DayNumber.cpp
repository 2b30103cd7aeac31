#include "astronomy/theory/DayNumber.h"

#include "astronomy/theory/AngleReduction.h"
#include "runtime/Numbers.h"

#include <cmath>

namespace kelvaro {

namespace {

/// `reckonedYear` has lost a year in January and February; `month` is the calendar's.
bool IsGregorian(int reckonedYear, double month, double day) {
    if (reckonedYear != 1582) {
        return reckonedYear > 1582;
    }
    if (month < 10) {
        return false;
    }
    return !(month == 10 && day < 5);
}

} // namespace

std::optional<double> DayNumberOf(double year, double month, double day) {
    if (year == 0) {
        return std::nullopt;
    }
    int reckonedYear = ToInt16(year);
    if (reckonedYear < 1) {
        ++reckonedYear;
    }
    double reckonedMonth = month;
    if (month < 3) {
        reckonedMonth = month + 12;
        --reckonedYear;
    }
    double leapCorrection = 0;
    if (IsGregorian(reckonedYear, month, day)) {
        const double century = std::floor(reckonedYear / 100.0);
        leapCorrection = 2 - century + std::floor(century / 4);
    }
    const double yearDays =
        reckonedYear < 0 ? 365.25 * reckonedYear - 0.75 - 694025 : std::floor(365.25 * reckonedYear) - 694025;
    return yearDays + leapCorrection + std::floor(30.6001 * (reckonedMonth + 1)) + day - 0.5;
}

double GreenwichSiderealHours(double dayNumber, double year, double universalHours) {
    const double t = dayNumber / 36525 - 1;
    const double correction = 0.0513366 * t + 2.586222e-05 * t * t - 1.722e-09 * t * t * t;
    const double atMidnight = 6.697374558 + 2400 * (t - (year - 2000) / 100);
    return FractionOf((1.002737908 * universalHours + atMidnight + correction) / 24) * 24;
}

} // namespace kelvaro
