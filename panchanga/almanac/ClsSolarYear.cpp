#include "panchanga/almanac/ClsSolarYear.h"

namespace kelvaro {

void ClsSolarYear::FindSolarYear() {
    yearname = years_.KaliyugaYearName(EnglishYear);
    YearVal = years_.YearVal;
    YearRemain = years_.YearRemain;
    YearDay = years_.DayVal;
}

} // namespace kelvaro
