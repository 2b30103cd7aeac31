#include "horoscope/entry/DateAndTimeRules.h"

#include "horoscope/entry/BirthEntry.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <cmath>

namespace kelvaro {

std::string DateTextOf(const BirthFields &fields) {
    return fields.txt_Date + "/" + fields.txt_Month + "/" + fields.txt_Year;
}

bool IsNoDate(const BirthFields &fields) {
    try {
        ReadMoment(DateTextOf(fields));
        return false;
    } catch (const ConversionError &) {
        return true;
    }
}

bool IsNoYear(const BirthFields &fields) {
    const double year = RoundHalfToEven(NumberIn("Year", fields.txt_Year));
    return year < 1800 || year > 3000;
}

bool IsOutside(std::string_view field, const std::string &number, double highest) {
    const double whole = std::floor(NumberIn(field, number));
    return whole < 0 || whole > highest;
}

double NumberIn(std::string_view field, const std::string &text) {
    try {
        return NumberFromText(text);
    } catch (const ConversionError &error) {
        throw ConversionError(std::string(field) + ": " + error.what());
    }
}

} // namespace kelvaro
