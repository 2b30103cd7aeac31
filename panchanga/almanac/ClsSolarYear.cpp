#include "panchanga/almanac/ClsSolarYear.h"

namespace kelvaro {

void ClsSolarYear::FindSolarYear() {
    yearname = years_.KaliyugaYearName(EnglishYear);
    const store::KaliyugaYear &row = years_.RowOrLast(EnglishYear);
    YearVal = row.YearVal;
    YearRemain = row.YearRemain;
    YearDay = row.DayVal;
}

} // namespace kelvaro
