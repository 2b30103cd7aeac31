#pragma once

#include <compare>
#include <cstdint>

namespace kelvaro {

/// A civil moment as a count of days from 1899-12-30 00:00, without a time zone.
///
/// The whole part of the count is the date and the fraction, whatever its sign, is the clock of that date
/// counted forward from midnight: -1.25 is six in the morning of 1899-12-29. Before the origin the raw
/// numbers therefore do not rise with time; comparisons are made on the time line. Dates are those of the
/// Gregorian calendar.
class Moment {
public:
    constexpr Moment() = default;
    explicit constexpr Moment(double serial) : serial_(serial) {}

    /// The moment at a distance in days from the origin on the time line, where 0.75 days before the origin
    /// is -0.75.
    static Moment AtTimeline(double days);

    constexpr double Serial() const { return serial_; }

    /// Days from the origin on the time line, rising with time.
    double Timeline() const;

    friend bool operator==(Moment a, Moment b) { return a.Timeline() == b.Timeline(); }
    friend std::partial_ordering operator<=>(Moment a, Moment b) { return a.Timeline() <=> b.Timeline(); }

private:
    double serial_ = 0;
};

/// A date of the Gregorian calendar, years 100 to 9999.
struct CivilDate {
    int year = 1899;
    int month = 12;
    int day = 30;

    friend bool operator==(const CivilDate &, const CivilDate &) = default;
};

/// A clock time, 00:00:00 to 23:59:59.
struct CivilClock {
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const CivilClock &, const CivilClock &) = default;
};

struct CivilMoment {
    CivilDate date;
    CivilClock clock;

    friend bool operator==(const CivilMoment &, const CivilMoment &) = default;
};

enum class Interval { Year, Month, Day, Hour, Minute, Second };

/// Date and clock to the nearest second, so that a hair before midnight is midnight of the next date.
/// Raises OverflowError for a moment outside the years 100 to 9999.
CivilMoment Split(Moment moment);

/// Raises ConversionError for a date or a clock that does not exist.
Moment MomentOf(const CivilDate &date, const CivilClock &clock = {});

/// Midnight that opens the date of the moment.
Moment DateOf(Moment moment);

/// The same date and clock without the seconds.
Moment ToTheMinute(Moment moment);

/// The date of one moment with the clock of another.
Moment Join(Moment date, Moment clock);

int YearOf(Moment moment);

/// 1 for Sunday to 7 for Saturday.
int WeekdayOf(Moment moment);

/// Adds whole intervals. A month or a year keeps the day of the month, or takes the last day of a shorter
/// month; months, years and days keep the clock exactly, hours and less work on whole seconds. Raises
/// OverflowError where the result leaves the years 100 to 9999.
Moment DateAdd(Interval interval, std::int32_t count, Moment moment);

/// Adds days with their fraction, along the time line.
Moment PlusDays(Moment moment, double days);

/// Counts the boundaries of the interval crossed from one moment to the other: midnights for days, New Years
/// for years, full hours for hours. Negative when `to` is the earlier one. Raises OverflowError beyond 32
/// bits.
std::int32_t DateDiff(Interval interval, Moment from, Moment to);

} // namespace kelvaro
