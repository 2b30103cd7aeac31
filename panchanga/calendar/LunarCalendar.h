#pragma once

#include "panchanga/calendar/KaliyugaYears.h"
#include "panchanga/calendar/TithiSearch.h"
#include "panchanga/day/SunTimes.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro {

/// A date of the lunar calendar: the month that holds a moment.
struct LunarDate {
    std::string flag; ///< "Adhika" or "Shudha"; empty where a search decides for neither
    std::string month;
    std::string yearName;
};

/// The lunar dates of a birth, in the two reckonings of the month: Krishnadi, which ends at the full moon,
/// and Sukladi, which ends at the new moon.
///
/// No table is behind them: the full or new moons around the birth are searched hour by hour, the sign of the
/// Sun at them gives the month, and two of them in one sign make a leap month. The sign is taken around the
/// beginning of the tithi, so a leap month is missed when the Sun enters its sign within the tithi.
///
/// Each reckoning keeps the Sun of its last search, and the Krishnadi date reads that of the Sukladi search,
/// which at that time is the one of the birth before. So there is one object for the run of the program, and
/// Krishnadi is asked first. Raises what the astronomy and the table of years raise, and OverflowError for
/// a search that leaves the calendar.
class LunarCalendar {
public:
    /// Both must outlive the object.
    LunarCalendar(SunTimes &sunTimes, KaliyugaYears &years) : sunTimes_(sunTimes), years_(years) {}
    LunarCalendar(const LunarCalendar &) = delete;
    LunarCalendar &operator=(const LunarCalendar &) = delete;
    ~LunarCalendar() = default;

    /// Finds the date. At the turn of a month a birth before sunrise belongs to the month before, but for the
    /// status "DP", which takes the whole civil date for the new month. What a search leaves open stays as
    /// the birth before had it, the flag excepted.
    void LunarDateKrishnadi(TithiSearch &search, std::string_view status);
    void LunarDateSukladi(TithiSearch &search, std::string_view status);

    const LunarDate &Krishnadi() const { return krishnadi_.date; }
    const LunarDate &Sukladi() const { return sukladi_.date; }

    /// The backward counts of full moons and of new moons; their forward counts and Suns are kept.
    std::int16_t PurnimaCount(TithiSearch &search);
    std::int16_t AmavasyaCount(TithiSearch &search);

private:
    struct Reckoning {
        std::string_view tithi; ///< that the search looks for
        std::string_view kind;  ///< that names the month
        TithiCount count{};
        LunarDate date{};
    };

    struct Birth {
        Moment moment;
        SunTimes::Day day;
        double sun;            ///< degrees
        bool belongsToItsDate; ///< and not to the date before
    };

    void FindDate(Reckoning &reckoning, const Birth &birth, TithiSearch &search);
    void FindAmongOne(Reckoning &reckoning, const Birth &birth, TithiSearch &search);
    void FindAmongTwo(Reckoning &reckoning, const Birth &birth, TithiSearch &search);
    void FindOnAmavasya(const Birth &birth, TithiSearch &search);
    void FindByTexts(Reckoning &reckoning, const Birth &birth, TithiSearch &search);
    Birth BirthLookedAt(const TithiSearch &search, std::string_view status);
    static std::string_view SignOfDay(const Birth &birth, double sun);
    void Write(Reckoning &reckoning, const Birth &birth, std::string_view sign, std::string_view flag);

    SunTimes &sunTimes_;
    KaliyugaYears &years_;
    Reckoning krishnadi_{"Purnima", "Purnima"};
    Reckoning sukladi_{"Amavashya", "Amavasya"};
};

} // namespace kelvaro
