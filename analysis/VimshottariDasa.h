#pragma once

#include "runtime/Moment.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace kelvaro {

/// Whole years of a lord's dasa, 6 to 20, by its English name ("Sun" to "Mercury", "Kethu"); blanks around
/// the name do not count. Raises ConversionError for any other name.
int DasaYears(std::string_view lord);

/// The lord whose dasa follows. Raises ConversionError for a name that is no lord's.
std::string_view NextDasaLord(std::string_view lord);

/// Minutes of arc from the Moon to the end of its star, whole, 0 to 801: the Moon's place is cut to whole
/// minutes, so one that stands a hair behind a star's start may still count for the minute before. `star`
/// comes as clsStar numbers it, 1 to 28, and leaves as its place among the 27. `moonLongitude` is in degrees,
/// 0 to 360.
int MinutesLeftInStar(std::int16_t &star, double moonLongitude);

/// A length of years cut into whole years, whole months of a twelfth and days of a thirtieth of them, the
/// days with their fraction.
struct YearsMonthsDays {
    int years;
    int months;
    double days;
};

YearsMonthsDays DivideYears(double years);

/// The 120 years of the Vimshottari scheme on three levels, each computed on its own.
///
/// A period starts where the one before it ended; the lists tell the ends. The nine dasas and the 729 antras
/// start at birth. The 81 bhuktis start with the first dasa, before birth. The lists of bhuktis and antras
/// run through the dasas in order, nine bhuktis to a dasa and nine antras to a bhukti. Lords are English
/// names.
struct VimshottariDasa {
    double balance = 0; ///< years of the first dasa that are left at birth
    std::array<std::string_view, 9> DasaLord;
    std::array<Moment, 9> DasaEnd;
    std::array<std::string_view, 81> BhuktiLord;
    std::array<Moment, 81> BhuktiEnd;
    std::array<std::string_view, 729> AntraLord;
    std::array<Moment, 729> AntraEnd;
};

/// Computes the scheme from the lord of the Moon's star and the minutes of arc that the Moon has left in it.
/// `daysInYear` is the length of a year in dasas and antras; bhuktis run by calendar years, months and days.
/// Raises ConversionError for a name that is no lord's and OverflowError where a period leaves the years 100
/// to 9999.
VimshottariDasa FindVimshottariDasa(std::string_view firstLord, int minutesLeft, Moment birth,
                                    double daysInYear);

} // namespace kelvaro
