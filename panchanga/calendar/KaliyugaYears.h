#pragma once

#include "runtime/Moment.h"
#include "store/database/Recordset.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro {

/// The names and values of the sixty-year cycle, from the table `KaliyugaYearDetails`.
class KaliyugaYears {
public:
    /// The connection must outlive the object.
    explicit KaliyugaYears(store::Connection &connection) : connection_(connection) {}
    KaliyugaYears(const KaliyugaYears &) = delete;
    KaliyugaYears &operator=(const KaliyugaYears &) = delete;
    ~KaliyugaYears() = default;

    /// The name of the year that begins in a year of the common calendar, with its values in the members
    /// below. Empty where the table has no row, as from 2107 on; the members then stay as they were. Raises
    /// StoreError, and ConversionError for a row without values.
    std::string KaliyugaYearName(int year);

    double YearVal = 0;      ///< days beyond whole weeks up to the year's start, not reduced
    std::int16_t DayVal = 0; ///< the weekday value of the year's start
    double YearRemain = 0;   ///< the fraction of a day at the year's start

private:
    store::Connection &connection_;
    store::Recordset rows_;
};

/// The year of the Kali age that a moment's calendar year opens; 0 before 1866.
std::int32_t KaliyugaYearOf(Moment moment);

/// The count of days of the Kali age up to the present date.
std::int32_t KaliDays(Moment today);

/// "Sunday" for 1 to "Saturday" for 7; larger numbers run on through the weeks. Empty below 1.
std::string_view WeekdayNameOf(int number);

} // namespace kelvaro
