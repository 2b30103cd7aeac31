#include "astronomy/theory/DayNumber.h"

#include "runtime/Numbers.h"

#include <cmath>

namespace kelvaro {

namespace {

/// `countedYear` has lost a year in January and February; `month` is the calendar's.
bool IsGregorian(int countedYear, double month, double day) {
    if (countedYear != 1582) {
        return countedYear > 1582;
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
    int countedYear = ToInt16(year);
    if (countedYear < 1) {
        ++countedYear;
    }
    double countedMonth = month;
    if (month < 3) {
        countedMonth = month + 12;
        --countedYear;
    }
    double leapCorrection = 0;
    if (IsGregorian(countedYear, month, day)) {
        const double century = std::floor(countedYear / 100.0);
        leapCorrection = 2 - century + std::floor(century / 4);
    }
    const double yearDays =
        countedYear < 0 ? 365.25 * countedYear - 0.75 - 694025 : std::floor(365.25 * countedYear) - 694025;
    return yearDays + leapCorrection + std::floor(30.6001 * (countedMonth + 1)) + day - 0.5;
}

} // namespace kelvaro
