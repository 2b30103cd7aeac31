#include "panchanga/calendar/LunarMonths.h"

#include "panchanga/calendar/KaliyugaYears.h"
#include "runtime/Texts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace kelvaro {

namespace {

struct MonthRow {
    std::string_view sign; ///< of the Sun
    std::string_view fullMoon;
    std::string_view newMoon;
};

constexpr double signSize = 30;

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

/// 0 for Aries; none outside the circle.
std::optional<std::size_t> SignIndex(double longitude) {
    if (!(longitude >= 0 && longitude <= 360)) {
        return std::nullopt;
    }
    std::size_t index = 0;
    while (longitude > static_cast<double>(index + 1) * signSize) {
        ++index;
    }
    return index;
}

template <std::size_t count>
bool Contains(const std::array<std::string_view, count> &words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

} // namespace

std::string_view SignOfSun(double longitude) {
    const auto index = SignIndex(longitude);
    return index ? signs.at(*index) : std::string_view();
}

std::string_view SignBeforeSun(double longitude) {
    const auto index = SignIndex(longitude);
    return index ? signs.at((*index + signs.size() - 1) % signs.size()) : std::string_view();
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
    const std::string word = LowerCase(month);
    const CivilDate date = Split(moment).date;
    if (Contains(monthsBeforeTheTurn, word)) {
        return years.KaliyugaYearName(date.year);
    }
    if (Contains(monthsAfterTheTurn, word)) {
        return years.KaliyugaYearName(date.month <= 4 ? date.year - 1 : date.year);
    }
    return {};
}

} // namespace kelvaro
