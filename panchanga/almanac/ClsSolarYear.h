#pragma once

#include "panchanga/calendar/KaliyugaYears.h"

#include <cstdint>
#include <string>

namespace kelvaro {

/// The row of the sixty-year cycle for the solar year that begins in a year of the common calendar.
class ClsSolarYear {
public:
    /// The table must outlive the object.
    explicit ClsSolarYear(store::KaliyugaYearTable &table) : years_(table) {}

    std::int16_t EnglishYear = 0; ///< input
    std::string yearname;
    double YearVal = 0;
    double YearRemain = 0;    ///< the fraction of a day at the year's start
    std::int16_t YearDay = 0; ///< the weekday value of the year's start

    /// Where the table has no row, as from 2107 on, the name becomes empty and the values stay. Raises
    /// StoreError, and ConversionError for a row without values.
    void FindSolarYear();

private:
    KaliyugaYears years_;
};

} // namespace kelvaro
