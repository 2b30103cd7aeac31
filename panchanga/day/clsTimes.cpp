#include "panchanga/day/clsTimes.h"

#include "runtime/MomentText.h"
#include "runtime/Numbers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kelvaro {

namespace {

/// Element k is the start of a span plus k parts.
using Boundaries = std::vector<Moment>;

/// The sixteenths and the sixtieths serve no result yet: the periods that fall on them have no elements.
struct BoundaryTables {
    Boundaries dayEighths, nightEighths;
    Boundaries daySixteenths, nightSixteenths;
    Boundaries dayTwelfths, nightTwelfths;
    Boundaries dayThirtieths, nightThirtieths;
    Boundaries wholeDaySixtieths;
    Boundaries dayFifteenths, nightFifteenths;
};

struct WeekdayElements {
    std::size_t RahukaalStart, GulikaRise_Day; ///< day eighths
    std::size_t GulikaRise_Night;              ///< night eighths
    std::size_t MandiRise_Day;                 ///< day thirtieths
    std::size_t MandiRise_Night;               ///< night thirtieths
};

constexpr std::array<WeekdayElements, 7> elementsByWeekday{{
    {7, 7, 3, 26, 10}, // Sunday
    {1, 6, 2, 22, 6},
    {6, 5, 1, 18, 2},
    {4, 4, 7, 14, 26},
    {5, 3, 6, 10, 22},
    {3, 2, 5, 6, 18},
    {2, 1, 4, 2, 14}, // Saturday
}};

/// A period of one part, from the element to the next.
struct SundayPeriod {
    Moment clsTimes::*start;
    Moment clsTimes::*end;
    Boundaries BoundaryTables::*table;
    std::size_t element;
};

constexpr std::array<SundayPeriod, 6> sundayPeriods{{
    {&clsTimes::vaarvelaStart, &clsTimes::vaarvelaEnd, &BoundaryTables::dayEighths, 3},
    {&clsTimes::kaalvelaStart, &clsTimes::kaalvelaEnd, &BoundaryTables::dayEighths, 4},
    {&clsTimes::yamaghanta2Start_Day, &clsTimes::yamaghanta2End_Day, &BoundaryTables::dayEighths, 4},
    {&clsTimes::ArdhayamaStart_Day, &clsTimes::ArdhayamaEnd_Day, &BoundaryTables::dayEighths, 3},
    {&clsTimes::Kantaka2Start_Day, &clsTimes::Kantaka2End_Day, &BoundaryTables::dayEighths, 2},
    {&clsTimes::KaalratriStart, &clsTimes::KaalratriEnd, &BoundaryTables::nightEighths, 5},
}};

constexpr std::size_t muhurtasInDay = 15;

constexpr std::array<std::string_view, 2 * muhurtasInDay> muhurtaNames{
    "Rudra/Aridra",
    "Sarpa/Ashlesha",
    "Mitra/Anuradha",
    "Pitar/Magha",
    "Vasu/Dhanishta",
    "Jal/Poorvashada",
    "Vishvadeva/UttaraShada",
    "Brahma/Abhijit",
    "Brahma/Rohini",
    "Indra/Jyeshta",
    "Indragani/Vishaka",
    "Raakshas/Moola",
    "Varun/Shatabisha",
    "Aryama/UttaraPalguni",
    "Bhaga/PoorvaPalguni",
    // By night.
    "Rudra/Aridra",
    "Ajpad/Poorvabhadra",
    "Ahirbhudhanya/Uttarabhadra",
    "Pusha/Revati",
    "Ashvani Kumar/Ashvani",
    "Yama/Bharni",
    "Agni/Krittika",
    "Brahma/Rohini",
    "Chandra/Mrigasirsha",
    "Aditi/Punarvasu",
    "Brihsapati/Pushya",
    "Vishnu/Shravana",
    "Surya/Hasta",
    "Vishvakarma/Chitra",
    "Pawan/Swati",
};

Boundaries Divide(Moment start, std::int32_t partSeconds, std::size_t parts) {
    Boundaries boundaries{start};
    while (boundaries.size() <= parts) {
        boundaries.push_back(DateAdd(Interval::Second, partSeconds, boundaries.back()));
    }
    return boundaries;
}

/// Seconds of a part, taken from the eighth of the span: its rounding reaches every other division.
std::int32_t PartOfEighths(std::int32_t eighth, int parts) {
    return ToInt32(eighth * 8.0 / parts);
}

BoundaryTables DivideAll(Moment sunrise, Moment sunset, Moment nextSunrise) {
    const std::int32_t day = ToInt32(DateDiff(Interval::Second, sunrise, sunset) / 8.0);
    const std::int32_t night = ToInt32(DateDiff(Interval::Second, sunset, nextSunrise) / 8.0);
    const std::int32_t sixtieth = ToInt32(DateDiff(Interval::Second, sunrise, nextSunrise) / 60.0);
    BoundaryTables tables;
    tables.dayEighths = Divide(sunrise, day, 8);
    tables.nightEighths = Divide(sunset, night, 8);
    tables.daySixteenths = Divide(sunrise, PartOfEighths(day, 16), 16);
    tables.nightSixteenths = Divide(sunset, PartOfEighths(night, 16), 16);
    tables.dayTwelfths = Divide(sunrise, PartOfEighths(day, 12), 12);
    tables.nightTwelfths = Divide(sunset, PartOfEighths(night, 12), 12);
    tables.dayThirtieths = Divide(sunrise, PartOfEighths(day, 30), 30);
    tables.nightThirtieths = Divide(sunset, PartOfEighths(night, 30), 30);
    tables.wholeDaySixtieths = Divide(sunrise, sixtieth, 60);
    tables.dayFifteenths = Divide(sunrise, PartOfEighths(day, 15), 15);
    tables.nightFifteenths = Divide(sunset, PartOfEighths(night, 15), 15);
    return tables;
}

void SetPeriods(clsTimes &times, const BoundaryTables &tables, int weekday) {
    const WeekdayElements &elements = elementsByWeekday.at(static_cast<std::size_t>(weekday - 1));
    times.RahukaalStart = tables.dayEighths.at(elements.RahukaalStart);
    times.RahukaalEnd = tables.dayEighths.at(elements.RahukaalStart + 1);
    times.MandiRise_Day = tables.dayThirtieths.at(elements.MandiRise_Day);
    times.MandiRise_Night = tables.nightThirtieths.at(elements.MandiRise_Night);

    // Gulika rises when its own part is over.
    times.GulikaRise_Day = tables.dayEighths.at(elements.GulikaRise_Day);
    times.GulikaStart_Day = tables.dayEighths.at(elements.GulikaRise_Day - 1);
    times.GulikaEnd_Day = times.GulikaRise_Day;
    times.GulikaRise_Night = tables.nightEighths.at(elements.GulikaRise_Night);
    times.GulikaStart_Night = tables.nightEighths.at(elements.GulikaRise_Night - 1);
    times.GulikaEnd_Night = times.GulikaRise_Night;

    // Of these only the elements of Sunday are known.
    if (weekday == 1) {
        for (const SundayPeriod &period : sundayPeriods) {
            const Boundaries &boundaries = tables.*period.table;
            times.*period.start = boundaries.at(period.element);
            times.*period.end = boundaries.at(period.element + 1);
        }
    }
}

/// Three lists that grow side by side, their entries separated by "~".
struct PeriodLists {
    std::string names, starts, ends;

    void Add(std::string_view name, Moment start, Moment end) {
        const std::string_view separator = names.empty() ? "" : "~";
        names.append(separator).append(name);
        starts.append(separator).append(TimingText(start));
        ends.append(separator).append(TimingText(end));
    }
};

/// The weekday that names an hour: the first has that of the day, and each later one lies two weekdays back.
int WeekdayOfHora(int weekday, int hora) {
    int named = weekday - 2 * (hora - 1);
    while (named < 1) {
        named += 7;
    }
    return named;
}

/// Twelve planetary hours, the first of them having that number in the whole day.
PeriodLists ListHoras(const Boundaries &twelfths, int weekday, int firstHora) {
    PeriodLists lists;
    for (std::size_t k = 0; k + 1 < twelfths.size(); ++k) {
        const int named = WeekdayOfHora(weekday, firstHora + static_cast<int>(k));
        lists.Add(WeekdayName(named), twelfths.at(k), twelfths.at(k + 1));
    }
    return lists;
}

PeriodLists ListMuhurtas(const Boundaries &day, const Boundaries &night) {
    PeriodLists lists;
    for (std::size_t i = 0; i < muhurtaNames.size(); ++i) {
        const Boundaries &boundaries = i < muhurtasInDay ? day : night;
        const std::size_t k = i % muhurtasInDay;
        lists.Add(muhurtaNames.at(i), boundaries.at(k), boundaries.at(k + 1));
    }
    return lists;
}

} // namespace

void clsTimes::findtimes() {
    const BoundaryTables tables = DivideAll(Sunrisetime, Sunsettime, SunRiseNexttime);
    const int weekday = WeekdayOf(currentdate);
    SetPeriods(*this, tables, weekday);

    const PeriodLists dayHoras = ListHoras(tables.dayTwelfths, weekday, 1);
    HoraName_DayTemp = dayHoras.names;
    HoraStart_DayTemp = dayHoras.starts;
    HoraEnd_DayTemp = dayHoras.ends;
    const PeriodLists nightHoras = ListHoras(tables.nightTwelfths, weekday, 13);
    HoraName_NightTemp = nightHoras.names;
    HoraStart_NightTemp = nightHoras.starts;
    HoraEnd_NightTemp = nightHoras.ends;

    const PeriodLists muhurtas = ListMuhurtas(tables.dayFifteenths, tables.nightFifteenths);
    DoGhatiMuhurtaName_Temp = muhurtas.names;
    DoGhatiMuhurtaStart_Temp = muhurtas.starts;
    DoGhatiMuhurtaEnd_Temp = muhurtas.ends;
}

} // namespace kelvaro
