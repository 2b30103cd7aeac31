#include "store/tables/KaliyugaYearTable.h"

#include "store/database/Recordset.h"

namespace kelvaro::store {

std::optional<KaliyugaYear> KaliyugaYearTable::RowOf(int Yearno) {
    if (const auto known = read_.find(Yearno); known != read_.end()) {
        return known->second;
    }
    Recordset rows;
    rows.Open("Select * From KaliyugaYearDetails where Yearno = " + std::to_string(Yearno), connection_);
    if (rows.IsEndOfFile()) {
        return std::nullopt;
    }
    KaliyugaYear year;
    year.YearVal = rows.Number("YearVal");
    year.DayVal = rows.ShortInteger("DayVal");
    year.YearRemain = rows.Number("YearRemain");
    year.yearname = rows.Line("yearname");
    read_.emplace(Yearno, year);
    return year;
}

} // namespace kelvaro::store
