#pragma once

#include "runtime/Moment.h"
#include "store/tables/KaliyugaYearTable.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro {

/// The years of the sixty-year cycle by the years of the common calendar in which they begin.
///
/// A year without a row, as all from 2107 on, goes on from the row found before it, whoever asked for that
/// one: there is one object for the run of the program. Raises StoreError, and ConversionError for a row
/// without values.
class KaliyugaYears {
public:
    /// The table must outlive the object.
    explicit KaliyugaYears(store::KaliyugaYearTable &table) : table_(table) {}
    KaliyugaYears(const KaliyugaYears &) = delete;
    KaliyugaYears &operator=(const KaliyugaYears &) = delete;
    ~KaliyugaYears() = default;

    /// The name of a year; empty where the table has no row.
    std::string KaliyugaYearName(int year);

    /// The row of a year, or the row found last.
    const store::KaliyugaYear &RowOrLast(int year);

private:
    bool Find(int year);

    store::KaliyugaYearTable &table_;
    store::KaliyugaYear lastFound_;
};

/// The year of the Kali age that a moment's calendar year opens; 0 before 1866.
std::int32_t KaliyugaYearOf(Moment moment);

/// The count of days of the Kali age up to the present date.
std::int32_t KaliDays(Moment today);

/// "Sunday" for 1 to "Saturday" for 7; larger numbers run on through the weeks. Empty below 1.
std::string_view WeekdayNameOf(int number);

} // namespace kelvaro
