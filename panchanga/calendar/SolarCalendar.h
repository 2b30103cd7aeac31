#pragma once

#include "panchanga/calendar/KaliyugaYears.h"
#include "panchanga/day/SunTimes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace kelvaro {

/// A date of the solar calendar, whose year opens near the middle of April.
struct SolarDate {
    std::int32_t day = 0; ///< 1 and up; 0 before the first date was found
    std::string month;
    std::string yearName;
    Moment monthStart;            ///< a sunrise
    std::int32_t monthLength = 0; ///< days
    std::int32_t kaliyugaYear = 0;
    std::int32_t kaliDays = 0; ///< up to the present date, not to the birth
};

/// The solar date of a moment at a site.
///
/// The start of a year comes from the table of sixty years, corrected for each period of sixty, and from the
/// sunrise of the day; the months are laid out from there by fixed counts of days. Values that a moment does
/// not assign are those of the moment before: there is one object for the run of the program.
class SolarCalendar {
public:
    /// All must outlive the object.
    SolarCalendar(SunTimes &sunTimes, KaliyugaYears &years) : sunTimes_(sunTimes), years_(years) {}
    SolarCalendar(const SolarCalendar &) = delete;
    SolarCalendar &operator=(const SolarCalendar &) = delete;
    ~SolarCalendar() = default;

    /// Finds the date of a moment; `today` is the present date. True when a year holds the moment. Otherwise,
    /// as for all before April of 1866, the date of the moment before stays; the Kaliyuga year of a moment
    /// before 1866 is 0. Raises what the table and the astronomy raise, and ConversionError for the year
    /// 9999.
    bool SolarDateOf(Moment moment, const Site &site, Moment today);

    const SolarDate &Date() const { return date_; }

    /// The opening of a solar year.
    struct YearStart {
        Moment sunrise;
        double fraction = 0; ///< of a day, from which the months are laid out
    };

    /// The start of the solar year that begins in a year of the common calendar. A year for which the table's
    /// weekday fits no date of the middle of April goes on from the sunrise found before; a year before 1866
    /// has the start found before.
    YearStart FindYearStart(int year, const Site &site);

private:
    /// The starts of the twelve months and, last, of the next year.
    using MonthStarts = std::array<Moment, 13>;

    bool FindDateBetween(Moment yearStart, Moment nextYearStart, Moment moment, int year, const Site &site);
    MonthStarts SolarMonths(Moment yearStart, Moment nextYearStart, const Site &site);
    Moment MonthStart(const YearStart &yearStart, std::size_t index, const Site &site);
    std::int32_t SolarDayOf(Moment monthStart, Moment moment, const Site &site);

    SunTimes &sunTimes_;
    KaliyugaYears &years_;
    YearStart yearStart_; ///< found last
    SolarDate date_;
};

} // namespace kelvaro
