#include "panchanga/calendar/LunarCalendar.h"

#include "panchanga/calendar/LunarMonths.h"
#include "runtime/MomentText.h"

#include <algorithm>

namespace kelvaro {

namespace {

constexpr std::string_view pratipada = "Pratipada";

std::string_view FlagOf(bool isLeapMonth) {
    return isLeapMonth ? "Adhika" : "Shudha";
}

/// Apart from both ends, whichever of them comes first in the order of texts.
bool LiesBetween(const std::string &text, const std::string &a, const std::string &b) {
    return std::min(a, b) < text && text < std::max(a, b);
}

} // namespace

void LunarCalendar::LunarDateKrishnadi(TithiSearch &search, std::string_view status) {
    search.LookAt(search.BirthMoment());
    const Birth birth = BirthLookedAt(search, status);
    PurnimaCount(search);
    FindDate(krishnadi_, birth, search);
}

void LunarCalendar::LunarDateSukladi(TithiSearch &search, std::string_view status) {
    // The Lagna, where the other reckoning looks at the Moon.
    search.LookAtSunAndLagna(search.BirthMoment());
    const Birth birth = BirthLookedAt(search, status);
    AmavasyaCount(search);
    FindDate(sukladi_, birth, search);
}

std::int16_t LunarCalendar::PurnimaCount(TithiSearch &search) {
    search.Count(krishnadi_.tithi, krishnadi_.count);
    return krishnadi_.count.backward;
}

std::int16_t LunarCalendar::AmavasyaCount(TithiSearch &search) {
    search.Count(sukladi_.tithi, sukladi_.count);
    return sukladi_.count.backward;
}

void LunarCalendar::FindDate(Reckoning &reckoning, const Birth &birth, TithiSearch &search) {
    reckoning.date.flag.clear();
    search.LookAt(birth.day.sunrise);
    if (reckoning.count.backward == 1) {
        FindAmongOne(reckoning, birth, search);
    } else if (reckoning.count.backward == 2) {
        FindAmongTwo(reckoning, birth, search);
    }
}

void LunarCalendar::FindAmongOne(Reckoning &reckoning, const Birth &birth, TithiSearch &search) {
    const TithiCount &count = reckoning.count;
    if (search.Is("Dark", reckoning.tithi)) {
        // A "Purnima" is never dark, so only the reckoning by the new moon comes here.
        FindOnAmavasya(birth, search);
    } else if (search.Is("Bright", pratipada)) {
        // By the new moon in both reckonings.
        Write(reckoning, birth, SignOfDay(birth, sukladi_.count.sun), FlagOf(count.forward == 2));
    } else {
        search.WalkToBrightPratipada(count.dates.front());
        Write(reckoning, birth, SignOfSun(count.sun), FlagOf(count.backward + count.forward == 2));
    }
}

/// The new moon stands at sunrise: the month is that of the Sun at birth, unless the tithi lasts over the
/// next sunrise or skips the one after it.
void LunarCalendar::FindOnAmavasya(const Birth &birth, TithiSearch &search) {
    std::string_view sign = SignOfSun(birth.sun);
    const bool isLeapMonth = sukladi_.count.forward == 2;
    if (!isLeapMonth) {
        search.LookAt(birth.day.nextSunrise);
        if (!search.Is(pratipada)) {
            sign = SignOfDay(birth, sukladi_.count.sun);
        }
    }
    Write(sukladi_, birth, sign, FlagOf(isLeapMonth));
}

void LunarCalendar::FindAmongTwo(Reckoning &reckoning, const Birth &birth, TithiSearch &search) {
    const TithiCount &count = reckoning.count;
    if (search.Is("Bright", pratipada) || search.Is("Dark", reckoning.tithi)) {
        Write(reckoning, birth, SignOfDay(birth, count.sun), FlagOf(count.forward == 2));
    } else {
        FindByTexts(reckoning, birth, search);
    }
}

/// Compares the dates as texts, so that the day of the month decides before the month does.
void LunarCalendar::FindByTexts(Reckoning &reckoning, const Birth &birth, TithiSearch &search) {
    const Moment first = reckoning.count.dates.at(0);
    const Moment second = reckoning.count.dates.at(1);
    const std::string birthText = MonthNameDateText(birth.moment);
    const bool isBetween = LiesBetween(birthText, MonthNameDateText(first), MonthNameDateText(second));
    const Moment hit = search.WalkToBrightPratipada(isBetween ? first : second);
    const std::string otherText = MonthNameDateText(isBetween ? second : first);
    std::string_view flag;
    if (birthText >= MonthNameDateText(hit)) {
        flag = FlagOf(false);
    } else if (birthText >= otherText) {
        flag = FlagOf(true);
    }
    // By the new moon in both reckonings.
    Write(reckoning, birth, SignOfSun(sukladi_.count.sun), flag);
}

/// The birth with the Sun that was looked at.
LunarCalendar::Birth LunarCalendar::BirthLookedAt(const TithiSearch &search, std::string_view status) {
    const Moment moment = search.BirthMoment();
    const SunTimes::Day day = sunTimes_.SunTimesOf(moment, search.BirthSite());
    return {moment, day, search.Sun(), status == "DP" || moment >= day.sunrise};
}

std::string_view LunarCalendar::SignOfDay(const Birth &birth, double sun) {
    return birth.belongsToItsDate ? SignOfSun(sun) : SignBeforeSun(sun);
}

void LunarCalendar::Write(Reckoning &reckoning, const Birth &birth, std::string_view sign,
                          std::string_view flag) {
    LunarDate &date = reckoning.date;
    date.flag = flag;
    date.month = LunarMonthName(reckoning.kind, sign);
    date.yearName = LunarYearName(years_, birth.moment, date.month);
}

} // namespace kelvaro
