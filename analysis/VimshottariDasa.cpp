#include "analysis/VimshottariDasa.h"

#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "runtime/Texts.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace kelvaro {

namespace {

struct Lord {
    std::string_view name;
    int years;
};

/// In running order, the first after the last.
constexpr std::array<Lord, 9> lords{{
    {"Sun", 6},
    {"Moon", 10},
    {"Mars", 7},
    {"Rahu", 18},
    {"Jupiter", 16},
    {"Saturn", 19},
    {"Mercury", 17},
    {"Kethu", 7},
    {"Venus", 20},
}};

constexpr int minutesInStar = 800;
constexpr int yearsOfScheme = 120;

std::size_t PlaceOf(std::string_view name) {
    const auto found = std::ranges::find(lords, name, &Lord::name);
    if (found == lords.end()) {
        throw ConversionError("\"" + std::string(name) + "\" is not the lord of a dasa");
    }
    return static_cast<std::size_t>(found - lords.begin());
}

const Lord &LordAt(std::size_t place) {
    return lords.at(place % lords.size());
}

void ComputeDasas(VimshottariDasa &scheme, std::size_t firstPlace, Moment birth, double daysInYear) {
    Moment end = PlusDays(birth, scheme.balance * daysInYear);
    for (std::size_t dasa = 0; dasa < scheme.DasaLord.size(); ++dasa) {
        const Lord &lord = LordAt(firstPlace + dasa);
        if (dasa > 0) {
            end = PlusDays(end, lord.years * daysInYear);
        }
        scheme.DasaLord[dasa] = lord.name;
        scheme.DasaEnd[dasa] = end;
    }
}

Moment EndOfBhukti(Moment start, const Lord &dasaLord, const Lord &subLord) {
    // In the arithmetic of doubles a month may come out as thirty days: one year and seven months of Saturn
    // in the Moon's dasa are one year, six months and thirty days here.
    const auto length = DivideYears(static_cast<double>(subLord.years * dasaLord.years) / yearsOfScheme);
    Moment end = DateAdd(Interval::Day, ToInt32(length.days), start);
    end = DateAdd(Interval::Month, length.months, end);
    return DateAdd(Interval::Year, length.years, end);
}

void ComputeBhuktis(VimshottariDasa &scheme, std::size_t firstPlace) {
    Moment end = DateAdd(Interval::Year, -LordAt(firstPlace).years, scheme.DasaEnd.front());
    for (std::size_t i = 0; i < scheme.BhuktiLord.size(); ++i) {
        const std::size_t dasaPlace = firstPlace + i / 9;
        const Lord &subLord = LordAt(dasaPlace + i % 9);
        end = EndOfBhukti(end, LordAt(dasaPlace), subLord);
        scheme.BhuktiLord[i] = subLord.name;
        scheme.BhuktiEnd[i] = end;
    }
}

void ComputeAntras(VimshottariDasa &scheme, std::size_t firstPlace, Moment birth, double daysInYear) {
    Moment end = birth;
    for (std::size_t i = 0; i < scheme.AntraLord.size(); ++i) {
        const std::size_t dasaPlace = firstPlace + i / 81;
        const std::size_t subPlace = dasaPlace + i / 9 % 9;
        const Lord &lord = LordAt(subPlace + i % 9);
        const int product = lord.years * LordAt(subPlace).years * LordAt(dasaPlace).years;
        end = PlusDays(end, static_cast<double>(product) / 40 * daysInYear / 365.25);
        scheme.AntraLord[i] = lord.name;
        scheme.AntraEnd[i] = end;
    }
}

} // namespace

int DasaYears(std::string_view lord) {
    return LordAt(PlaceOf(Trimmed(lord))).years;
}

std::string_view NextDasaLord(std::string_view lord) {
    return LordAt(PlaceOf(lord) + 1).name;
}

int MinutesLeftInStar(std::int16_t &star, double moonLongitude) {
    if (star >= 22) {
        // Leaves Abijit out, which counts as a star of its own.
        --star;
    }
    const double degrees = std::floor(moonLongitude);
    const double minutes = degrees * 60 + (moonLongitude - degrees) * 60;
    return star * minutesInStar - ToInt32(std::floor(minutes));
}

YearsMonthsDays DivideYears(double years) {
    const double wholeYears = std::floor(years);
    const double months = (years - wholeYears) * 12;
    const double wholeMonths = std::floor(months);
    return {ToInt32(wholeYears), ToInt32(wholeMonths), (months - wholeMonths) * 30};
}

VimshottariDasa FindVimshottariDasa(std::string_view firstLord, int minutesLeft, Moment birth,
                                    double daysInYear) {
    const std::size_t firstPlace = PlaceOf(firstLord);
    VimshottariDasa scheme;
    scheme.balance = static_cast<double>(LordAt(firstPlace).years * minutesLeft) / minutesInStar;
    ComputeDasas(scheme, firstPlace, birth, daysInYear);
    ComputeBhuktis(scheme, firstPlace);
    ComputeAntras(scheme, firstPlace, birth, daysInYear);
    return scheme;
}

} // namespace kelvaro
