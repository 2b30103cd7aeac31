#include "runtime/MomentText.h"

#include "runtime/RuntimeError.h"
#include "runtime/Texts.h"

#include <array>
#include <charconv>
#include <optional>
#include <system_error>

namespace kelvaro {

namespace {

constexpr std::array<std::string_view, 12> monthNames{"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};

constexpr std::array<std::string_view, 7> weekdayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};

[[noreturn]] void FailToRead(std::string_view text, const char *wanted) {
    throw ConversionError("Type mismatch: \"" + OneLine(text) + "\" is not " + wanted);
}

std::optional<int> WholeNumber(std::string_view digits) {
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (digits.empty() || digits.front() == '-' || error != std::errc{} ||
        end != digits.data() + digits.size()) {
        return std::nullopt;
    }
    return value;
}

/// Walks a text from left to right, passing over blanks before each part.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    std::string_view Word() {
        SkipBlanks();
        const auto end = rest_.find_first_of(" \t/:-");
        const std::string_view word = rest_.substr(0, end);
        rest_.remove_prefix(word.size());
        return word;
    }

    bool Take(char mark) {
        SkipBlanks();
        if (rest_.empty() || rest_.front() != mark) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    bool AtEnd() {
        SkipBlanks();
        return rest_.empty();
    }

private:
    void SkipBlanks() {
        const auto first = rest_.find_first_not_of(" \t");
        rest_.remove_prefix(first == std::string_view::npos ? rest_.size() : first);
    }

    std::string_view rest_;
};

std::optional<CivilDate> ReadDate(Reader &reader) {
    const auto day = WholeNumber(reader.Word());
    const bool slashed = reader.Take('/');
    if (!day || (!slashed && !reader.Take('-'))) {
        return std::nullopt;
    }
    const std::string_view month = reader.Word();
    if (month.empty() || !reader.Take(slashed ? '/' : '-')) {
        return std::nullopt;
    }
    const auto year = WholeNumber(reader.Word());
    if (!year) {
        return std::nullopt;
    }
    return CivilDate{*year, ReadMonth(month), *day};
}

/// Turns the hour of a 12-hour clock into one of a 24-hour clock; an hour of 13 to 23 already is one.
bool ApplyMarker(std::string_view marker, int &hour) {
    const bool isPm = SameIgnoringCase(marker, "PM");
    if ((!isPm && !SameIgnoringCase(marker, "AM")) || hour == 0) {
        return false;
    }
    if (hour <= 12) {
        hour = hour % 12 + (isPm ? 12 : 0);
    }
    return true;
}

std::optional<CivilClock> ReadClock(Reader &reader) {
    const auto hour = WholeNumber(reader.Word());
    if (!hour || !reader.Take(':')) {
        return std::nullopt;
    }
    const auto minute = WholeNumber(reader.Word());
    auto second = std::optional<int>(0);
    if (reader.Take(':')) {
        second = WholeNumber(reader.Word());
    }
    if (!minute || !second) {
        return std::nullopt;
    }
    CivilClock clock{*hour, *minute, *second};
    if (!reader.AtEnd() && !ApplyMarker(reader.Word(), clock.hour)) {
        return std::nullopt;
    }
    return clock;
}

/// Writes a number over so many digits of a text, with leading zeros.
void Put(std::string &text, std::size_t place, std::size_t digits, int number) {
    for (std::size_t i = place + digits; i-- > place; number /= 10) {
        text.at(i) = static_cast<char>('0' + number % 10);
    }
}

} // namespace

Moment ReadMoment(std::string_view text) {
    Reader reader(text);
    const auto date = ReadDate(reader);
    if (!date) {
        FailToRead(text, "a date");
    }
    if (reader.AtEnd()) {
        return MomentOf(*date);
    }
    const auto clock = ReadClock(reader);
    if (!clock || !reader.AtEnd()) {
        FailToRead(text, "a date with a clock time");
    }
    return MomentOf(*date, *clock);
}

int ReadMonth(std::string_view text) {
    if (const auto number = WholeNumber(text); number && *number >= 1 && *number <= 12) {
        return *number;
    }
    for (std::size_t i = 0; i < monthNames.size(); ++i) {
        if (SameIgnoringCase(text, monthNames[i]) || SameIgnoringCase(text, monthNames[i].substr(0, 3))) {
            return static_cast<int>(i) + 1;
        }
    }
    FailToRead(text, "a month");
}

std::string DateText(Moment moment) {
    const CivilDate date = Split(moment).date;
    std::string text("00/00/0000");
    Put(text, 0, 2, date.day);
    Put(text, 3, 2, date.month);
    Put(text, 6, 4, date.year);
    return text;
}

std::string MonthNameDateText(Moment moment) {
    const CivilDate date = Split(moment).date;
    std::string text("00/Jan/0000");
    Put(text, 0, 2, date.day);
    text.replace(3, 3, monthNames.at(static_cast<std::size_t>(date.month - 1)).substr(0, 3));
    Put(text, 7, 4, date.year);
    return text;
}

std::string LongDateText(Moment moment) {
    const CivilDate date = Split(moment).date;
    std::string text(WeekdayName(WeekdayOf(moment)));
    text.append(" ").append(std::to_string(date.day)).append(" ");
    text.append(monthNames.at(static_cast<std::size_t>(date.month - 1)));
    return text + " " + std::to_string(date.year);
}

std::string ClockText(Moment moment) {
    const CivilClock clock = Split(moment).clock;
    std::string text(clock.hour < 12 ? "00:00 AM" : "00:00 PM");
    Put(text, 0, 2, clock.hour % 12 == 0 ? 12 : clock.hour % 12);
    Put(text, 3, 2, clock.minute);
    return text;
}

std::string MomentText(Moment moment) {
    return DateText(moment) + " " + ClockText(moment);
}

std::string MonthNameMomentText(Moment moment) {
    return MonthNameDateText(moment) + " " + ClockText(moment);
}

std::string TimingText(Moment moment) {
    const CivilClock clock = Split(moment).clock;
    std::string text("00:00:00");
    Put(text, 0, 2, clock.hour);
    Put(text, 3, 2, clock.minute);
    Put(text, 6, 2, clock.second);
    return text;
}

bool IsBeforeNoon(Moment moment) {
    return Split(moment).clock.hour < 12;
}

std::string_view WeekdayName(int weekday) {
    if (weekday < 1 || weekday > 7) {
        throw ConversionError("There is no weekday number " + std::to_string(weekday));
    }
    return weekdayNames.at(static_cast<std::size_t>(weekday - 1));
}

} // namespace kelvaro
