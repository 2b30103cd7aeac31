#include "tools/horoscope-json/BirthReader.h"

#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

namespace kelvaro {

namespace {

using nlohmann::json;

/// A text that may be any, and may be missing.
struct TextKey {
    const char *key;
    std::string HoroscopeState::*field;
};

/// A text that is one of two letters.
struct SideKey {
    const char *key;
    std::string HoroscopeState::*field;
    const char *first;
    const char *second;
};

/// A whole number that the record keeps as a text.
struct WholeKey {
    const char *key;
    std::string HoroscopeState::*field;
    int lowest;
    int highest;
};

struct NumberKey {
    const char *key;
    double HoroscopeState::*field;
    double lowest;
    double highest;
    const char *rule;
};

constexpr std::array<TextKey, 5> labels{{
    {"ChartName", &HoroscopeState::ChartName},
    {"BirthGender", &HoroscopeState::BirthGender},
    {"BirthTimeZoneName", &HoroscopeState::BirthTimeZoneName},
    {"BirthCity", &HoroscopeState::BirthCity},
    {"BirthCountry", &HoroscopeState::BirthCountry},
}};

constexpr WholeKey birthDay{"BirthDay", &HoroscopeState::BirthDay, 1, 31};
/// The years that a moment can hold.
constexpr WholeKey birthYear{"BirthYear", &HoroscopeState::BirthYear, 100, 9999};
constexpr WholeKey birthHour{"BirthHour", &HoroscopeState::BirthHour, 0, 23};
constexpr WholeKey birthMinute{"BirthMinute", &HoroscopeState::BirthMinute, 0, 59};

constexpr double belowSixty = 59.999999999999993; // the last number before 60
constexpr std::array<NumberKey, 5> places{{
    {"LatDeg", &HoroscopeState::LatDeg, 0, 90, "must be a number from 0 to 90"},
    {"LatMin", &HoroscopeState::LatMin, 0, belowSixty, "must be a number from 0 to below 60"},
    {"LonDeg", &HoroscopeState::LonDeg, 0, 180, "must be a number from 0 to 180"},
    {"LonMin", &HoroscopeState::LonMin, 0, belowSixty, "must be a number from 0 to below 60"},
    {"TimeDiff", &HoroscopeState::TimeDiff, 0, 24, "must be a number from 0 to 24"},
}};

constexpr std::array<SideKey, 3> sides{{
    {"LatNS", &HoroscopeState::LatNS, "N", "S"},
    {"LonEW", &HoroscopeState::LonEW, "E", "W"},
    {"TimeDiffEW", &HoroscopeState::TimeDiffEW, "E", "W"},
}};

constexpr std::array<TextKey, 4> preferredWords{{
    {"Ayanamsa", &HoroscopeState::AyanamsaName},
    {"Bhava", &HoroscopeState::BhavaSystem},
    {"ChartStyle", &HoroscopeState::ChartStyle},
    {"PreferLanguage", &HoroscopeState::Language},
}};

constexpr double largest = std::numeric_limits<double>::max();
constexpr std::array<NumberKey, 3> preferredNumbers{{
    {"DayInYear", &HoroscopeState::DaysInYear, -largest, largest, "must be a number"},
    {"CustomYear", &HoroscopeState::PrefYear, -largest, largest, "must be a number"},
    {"CustomProgress", &HoroscopeState::PrefProgress, -largest, largest, "must be a number"},
}};

[[noreturn]] void Refuse(const char *key, const std::string &complaint) {
    throw BirthError(std::string(key) + " " + complaint);
}

const json &Required(const json &birth, const char *key) {
    const auto found = birth.find(key);
    if (found == birth.end()) {
        Refuse(key, "is missing");
    }
    return *found;
}

std::string Trimmed(const std::string &text) {
    const auto first = text.find_first_not_of(" \t");
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::optional<double> AsNumber(const json &value) {
    if (value.is_number()) {
        return value.get<double>();
    }
    if (!value.is_string()) {
        return std::nullopt;
    }
    try {
        return NumberFromText(value.get_ref<const std::string &>());
    } catch (const ConversionError &) {
        return std::nullopt;
    }
}

/// A whole number of no more than nine digits.
std::optional<int> WholeFromDigits(const std::string &digits) {
    int value = 0;
    const auto isDigit = [](char letter) { return letter >= '0' && letter <= '9'; };
    if (digits.empty() || digits.size() > 9 || !std::ranges::all_of(digits, isDigit)) {
        return std::nullopt;
    }
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

/// What an entry field would hold: a text as it stands, so that "05" stays "05", or the digits of a whole
/// number. Empty for any other value.
std::string EntryText(const json &value) {
    if (value.is_string()) {
        return Trimmed(value.get_ref<const std::string &>());
    }
    if (value.is_number() && value.get<double>() == std::trunc(value.get<double>())) {
        return NumberText(value.get<double>());
    }
    return {};
}

void ReadText(const json &birth, const TextKey &wanted, const std::string &missing, HoroscopeState &state) {
    const auto found = birth.find(wanted.key);
    if (found == birth.end()) {
        state.*wanted.field = missing;
    } else if (found->is_string()) {
        state.*wanted.field = found->get<std::string>();
    } else {
        Refuse(wanted.key, "must be a text");
    }
}

void ReadSide(const json &birth, const SideKey &wanted, HoroscopeState &state) {
    const json &value = Required(birth, wanted.key);
    if (value != wanted.first && value != wanted.second) {
        Refuse(wanted.key, std::string("must be \"") + wanted.first + "\" or \"" + wanted.second + "\"");
    }
    state.*wanted.field = value.get<std::string>();
}

int ReadWhole(const json &birth, const WholeKey &wanted, HoroscopeState &state) {
    const std::string digits = EntryText(Required(birth, wanted.key));
    const auto number = WholeFromDigits(digits);
    if (!number || *number < wanted.lowest || *number > wanted.highest) {
        Refuse(wanted.key, "must be a whole number from " + std::to_string(wanted.lowest) + " to " +
                               std::to_string(wanted.highest));
    }
    state.*wanted.field = digits;
    return *number;
}

int ReadBirthMonth(const json &birth, HoroscopeState &state) {
    const char *const key = "BirthMonth";
    const std::string text = EntryText(Required(birth, key));
    try {
        const int month = ReadMonth(text);
        state.BirthMonth = text;
        return month;
    } catch (const ConversionError &) {
        Refuse(key, "must be the number or the English name of a month");
    }
}

void ReadNumber(const json &value, const NumberKey &wanted, HoroscopeState &state) {
    const auto number = AsNumber(value);
    if (!number || *number < wanted.lowest || *number > wanted.highest) {
        Refuse(wanted.key, wanted.rule);
    }
    state.*wanted.field = *number;
}

void ReadDateAndClock(const json &birth, HoroscopeState &state) {
    const int day = ReadWhole(birth, birthDay, state);
    const int month = ReadBirthMonth(birth, state);
    const int year = ReadWhole(birth, birthYear, state);
    const std::chrono::year_month_day date{std::chrono::year{year},
                                           std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    if (!date.ok()) {
        throw BirthError("BirthDay, BirthMonth and BirthYear are no date: " + state.BirthDay + "/" +
                         state.BirthMonth + "/" + state.BirthYear);
    }
    const int hour = ReadWhole(birth, birthHour, state);
    const int minute = ReadWhole(birth, birthMinute, state);
    state.BirthMoment = MomentOf({year, month, day}, {hour, minute, 0});
}

void ReadPlace(const json &birth, HoroscopeState &state) {
    for (const NumberKey &wanted : places) {
        ReadNumber(Required(birth, wanted.key), wanted, state);
    }
    for (const SideKey &wanted : sides) {
        ReadSide(birth, wanted, state);
    }
    if (state.LatDeg + state.LatMin / 60 > 90) {
        throw BirthError("LatDeg and LatMin together must not be above 90 degrees");
    }
    if (state.LonDeg + state.LonMin / 60 > 180) {
        throw BirthError("LonDeg and LonMin together must not be above 180 degrees");
    }
}

void ReadPreferences(const json &birth, HoroscopeState &state) {
    const HoroscopeState defaults;
    for (const TextKey &wanted : preferredWords) {
        ReadText(birth, wanted, defaults.*wanted.field, state);
    }
    for (const NumberKey &wanted : preferredNumbers) {
        const auto found = birth.find(wanted.key);
        if (found == birth.end()) {
            state.*wanted.field = defaults.*wanted.field;
        } else {
            ReadNumber(*found, wanted, state);
        }
    }
    state.AyanamsaInForce = state.AyanamsaName;
    state.YearInForce = state.PrefYear;
    state.ProgressInForce = state.PrefProgress;
}

json ParsedObject(const std::string &line) {
    if (line.find_first_not_of(" \t\r") == std::string::npos) {
        throw BirthError("The line is empty");
    }
    // The parser takes a zero byte for the end of the text and would not see what stands behind it.
    if (line.find('\0') != std::string::npos) {
        throw BirthError("The line is no JSON: it holds a zero byte");
    }
    json birth;
    try {
        birth = json::parse(line);
    } catch (const json::exception &error) {
        const std::string_view cause = error.what();
        const auto code = cause.find("] ");
        throw BirthError("The line is no JSON: " +
                         std::string(cause.substr(code == std::string_view::npos ? 0 : code + 2)));
    }
    if (!birth.is_object()) {
        throw BirthError("The line is no JSON object");
    }
    return birth;
}

} // namespace

void ReadBirth(const std::string &line, HoroscopeState &state) {
    const json birth = ParsedObject(line);
    HoroscopeState read = state;
    for (const TextKey &wanted : labels) {
        ReadText(birth, wanted, "", read);
    }
    ReadDateAndClock(birth, read);
    ReadPlace(birth, read);
    ReadPreferences(birth, read);
    state = std::move(read);
}

} // namespace kelvaro
