#include "panchanga/calendar/LunarMonths.h"

#include "panchanga/Sign.h"
#include "panchanga/calendar/KaliyugaYears.h"
#include "runtime/Texts.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace kelvaro {

namespace {

struct MonthRow {
    std::string_view sign; ///< of the Sun
    std::string_view fullMoon;
    std::string_view newMoon;
};

constexpr std::array<std::string_view, 12> signs{"ARIES",      "TAURUS",   "GEMINI",   "CANCER",
                                                 "LEO",        "VIRGO",    "LIBRA",    "SCORPIO",
                                                 "SAGITARIUS", "CAPRICON", "AQUARIUS", "PISCES"};

// The eighth month is spelled in two ways.
constexpr std::array<MonthRow, 12> months{{
    {"pisces", "Chaitra", "Chaitra"},
    {"aries", "Vaisakha", "Vaisakha"},
    {"taurus", "Jyeshtha", "Jyeshtha"},
    {"gemini", "Ashadha", "Ashadha"},
    {"cancer", "Sravana", "Sravana"},
    {"leo", "Bhadrapada", "Bhadrapada"},
    {"virgo", "Asvina", "Asvina"},
    {"libra", "Karttika", "Kartikka"},
    {"scorpio", "Margasira", "Margasira"},
    {"sagitarius", "Pausha", "Pausha"},
    {"capricon", "Magha", "Magha"},
    {"aquarius", "Phalguna", "Phalguna"},
}};

constexpr std::array<std::string_view, 5> monthsBeforeTheTurn{"chaitra", "vaisakha", "jyeshtha", "ashadha",
                                                              "sravana"};

// Months that may run over into the next year of the common calendar. All spellings of the eighth are known.
constexpr std::array<std::string_view, 10> monthsAfterTheTurn{
    "bhadrapada", "asvina",    "karttika", "kartikka", "karttikka",
    "kartika",    "margasira", "pausha",   "magha",    "phalguna"};

/// None outside the circle; the upper bound of a sign belongs to it.
std::optional<Sign> SignAt(double longitude) {
    if (!(longitude >= 0 && longitude <= 360)) {
        return std::nullopt;
    }
    int number = 1;
    while (longitude > number * rasiSize) {
        ++number;
    }
    return Sign(number);
}

bool Contains(std::span<const std::string_view> words, std::string_view month) {
    return std::ranges::any_of(words, [=](std::string_view each) { return SameIgnoringCase(each, month); });
}

} // namespace

std::string_view SignOfSun(double longitude) {
    const auto sign = SignAt(longitude);
    return sign ? signs.at(sign->Index()) : std::string_view();
}

std::string_view SignBeforeSun(double longitude) {
    const auto sign = SignAt(longitude);
    return sign ? signs.at(sign->Previous().Index()) : std::string_view();
}

std::string_view LunarMonthName(std::string_view kind, std::string_view sign) {
    const auto *const row = std::ranges::find_if(
        months, [=](const MonthRow &month) { return SameIgnoringCase(month.sign, sign); });
    if (row == months.end()) {
        return {};
    }
    return SameIgnoringCase(kind, "purnima")    ? row->fullMoon
           : SameIgnoringCase(kind, "amavasya") ? row->newMoon
                                                : std::string_view();
}

std::string LunarYearName(KaliyugaYears &years, Moment moment, std::string_view month) {
    const CivilDate date = Split(moment).date;
    if (Contains(monthsBeforeTheTurn, month)) {
        return years.KaliyugaYearName(date.year);
    }
    if (Contains(monthsAfterTheTurn, month)) {
        return years.KaliyugaYearName(date.month <= 4 ? date.year - 1 : date.year);
    }
    return {};
}

} // namespace kelvaro
