#include "tools/births/BirthReader.h"

#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "runtime/Texts.h"
#include "tools/births/BirthLines.h"

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
template <typename Part> struct TextKey {
    const char *key;
    std::string Part::*field;
};

/// A text that is one of two letters.
struct SideKey {
    const char *key;
    std::string Site::*field;
    const char *first;
    const char *second;
};

/// A whole number that the record keeps as a text.
struct WholeKey {
    const char *key;
    std::string BirthDetails::*field;
    int lowest;
    int highest;
};

template <typename Part> struct NumberKey {
    const char *key;
    double Part::*field;
    double lowest;
    double highest;
    const char *rule;
};

constexpr std::array<TextKey<BirthDetails>, 5> labels{{
    {"ChartName", &BirthDetails::ChartName},
    {"BirthGender", &BirthDetails::BirthGender},
    {"BirthTimeZoneName", &BirthDetails::BirthTimeZoneName},
    {"BirthCity", &BirthDetails::BirthCity},
    {"BirthCountry", &BirthDetails::BirthCountry},
}};

constexpr WholeKey birthDay{"BirthDay", &BirthDetails::BirthDay, 1, 31};
/// The years that a moment can hold.
constexpr WholeKey birthYear{"BirthYear", &BirthDetails::BirthYear, 100, 9999};
constexpr WholeKey birthHour{"BirthHour", &BirthDetails::BirthHour, 0, 23};
constexpr WholeKey birthMinute{"BirthMinute", &BirthDetails::BirthMinute, 0, 59};

constexpr double belowSixty = 59.999999999999993; // the last number before 60
constexpr std::array<NumberKey<Site>, 5> places{{
    {"LatDeg", &Site::LatDeg, 0, 90, "must be a number from 0 to 90"},
    {"LatMin", &Site::LatMin, 0, belowSixty, "must be a number from 0 to below 60"},
    {"LonDeg", &Site::LonDeg, 0, 180, "must be a number from 0 to 180"},
    {"LonMin", &Site::LonMin, 0, belowSixty, "must be a number from 0 to below 60"},
    {"TimeDiff", &Site::TimeDiff, 0, 24, "must be a number from 0 to 24"},
}};

constexpr std::array<SideKey, 3> sides{{
    {"LatNS", &Site::LatNS, "N", "S"},
    {"LonEW", &Site::LonEW, "E", "W"},
    {"TimeDiffEW", &Site::TimeDiffEW, "E", "W"},
}};

constexpr std::array<TextKey<Preferences>, 4> preferredWords{{
    {"Ayanamsa", &Preferences::AyanamsaName},
    {"Bhava", &Preferences::BhavaSystem},
    {"ChartStyle", &Preferences::ChartStyle},
    {"PreferLanguage", &Preferences::Language},
}};

constexpr double largest = std::numeric_limits<double>::max();
constexpr std::array<NumberKey<Preferences>, 3> preferredNumbers{{
    {"DayInYear", &Preferences::DaysInYear, -largest, largest, "must be a number"},
    {"CustomYear", &Preferences::PrefYear, -largest, largest, "must be a number"},
    {"CustomProgress", &Preferences::PrefProgress, -largest, largest, "must be a number"},
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
        return std::string(Trimmed(value.get_ref<const std::string &>()));
    }
    if (value.is_number() && value.get<double>() == std::trunc(value.get<double>())) {
        return NumberText(value.get<double>());
    }
    return {};
}

template <typename Part>
void ReadText(const json &birth, const TextKey<Part> &wanted, const std::string &missing, Part &part) {
    const auto found = birth.find(wanted.key);
    if (found == birth.end()) {
        part.*wanted.field = missing;
        return;
    }
    if (!found->is_string()) {
        Refuse(wanted.key, "must be a text");
    }
    const auto &text = found->template get_ref<const std::string &>();
    if (CharactersIn(text) > longestName) {
        Refuse(wanted.key, "must have at most " + std::to_string(longestName) + " characters");
    }
    part.*wanted.field = text;
}

void ReadSide(const json &birth, const SideKey &wanted, Site &site) {
    const json &value = Required(birth, wanted.key);
    if (value != wanted.first && value != wanted.second) {
        Refuse(wanted.key, std::string("must be \"") + wanted.first + "\" or \"" + wanted.second + "\"");
    }
    site.*wanted.field = value.get<std::string>();
}

int ReadWhole(const json &birth, const WholeKey &wanted, BirthDetails &details) {
    const std::string digits = EntryText(Required(birth, wanted.key));
    const auto number = WholeFromDigits(digits);
    if (!number || *number < wanted.lowest || *number > wanted.highest) {
        Refuse(wanted.key, "must be a whole number from " + std::to_string(wanted.lowest) + " to " +
                               std::to_string(wanted.highest));
    }
    details.*wanted.field = digits;
    return *number;
}

int ReadBirthMonth(const json &birth, BirthDetails &details) {
    const char *const key = "BirthMonth";
    const std::string text = EntryText(Required(birth, key));
    try {
        const int month = ReadMonth(text);
        details.BirthMonth = text;
        return month;
    } catch (const ConversionError &) {
        Refuse(key, "must be the number or the English name of a month");
    }
}

template <typename Part> void ReadNumber(const json &value, const NumberKey<Part> &wanted, Part &part) {
    const auto number = AsNumber(value);
    if (!number || *number < wanted.lowest || *number > wanted.highest) {
        Refuse(wanted.key, wanted.rule);
    }
    part.*wanted.field = *number;
}

void ReadDateAndClock(const json &birth, BirthDetails &details) {
    const int day = ReadWhole(birth, birthDay, details);
    const int month = ReadBirthMonth(birth, details);
    const int year = ReadWhole(birth, birthYear, details);
    const std::chrono::year_month_day date{std::chrono::year{year},
                                           std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    if (!date.ok()) {
        throw BirthError("BirthDay, BirthMonth and BirthYear are no date: " + details.BirthDay + "/" +
                         details.BirthMonth + "/" + details.BirthYear);
    }
    const int hour = ReadWhole(birth, birthHour, details);
    const int minute = ReadWhole(birth, birthMinute, details);
    details.BirthMoment = MomentOf({year, month, day}, {hour, minute, 0});
}

void ReadPlace(const json &birth, Site &site) {
    for (const auto &wanted : places) {
        ReadNumber(Required(birth, wanted.key), wanted, site);
    }
    for (const SideKey &wanted : sides) {
        ReadSide(birth, wanted, site);
    }
    if (site.LatDeg + site.LatMin / 60 > 90) {
        throw BirthError("LatDeg and LatMin together must not be above 90 degrees");
    }
    if (site.LonDeg + site.LonMin / 60 > 180) {
        throw BirthError("LonDeg and LonMin together must not be above 180 degrees");
    }
}

void ReadPreferences(const json &birth, Preferences &preferences) {
    const Preferences defaults;
    for (const auto &wanted : preferredWords) {
        ReadText(birth, wanted, defaults.*wanted.field, preferences);
    }
    for (const auto &wanted : preferredNumbers) {
        const auto found = birth.find(wanted.key);
        if (found == birth.end()) {
            preferences.*wanted.field = defaults.*wanted.field;
        } else {
            ReadNumber(*found, wanted, preferences);
        }
    }
    preferences.AyanamsaInForce = preferences.AyanamsaName;
    preferences.YearInForce = preferences.PrefYear;
    preferences.ProgressInForce = preferences.PrefProgress;
}

json ParsedObject(std::string_view line) {
    if (line.size() > BirthLines::longestLine) {
        throw BirthError("The line is longer than 1 MB");
    }
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

void ReadBirth(std::string_view line, HoroscopeState &state) {
    const json birth = ParsedObject(line);
    HoroscopeState read = state;
    for (const auto &wanted : labels) {
        ReadText(birth, wanted, "", read.birth);
    }
    ReadDateAndClock(birth, read.birth);
    ReadPlace(birth, read.site);
    ReadPreferences(birth, read.preferences);
    state = std::move(read);
}

} // namespace kelvaro
