#pragma once

#include "store/database/Connection.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace kelvaro::store {

/// A row of the sixty-year cycle.
struct KaliyugaYear {
    std::string yearname;
    double YearVal = 0;      ///< days beyond whole weeks up to the year's start, not reduced
    std::int16_t DayVal = 0; ///< the weekday value of the year's start
    double YearRemain = 0;   ///< the fraction of a day at the year's start
};

/// The table `KaliyugaYearDetails`, of which the program reads each row once.
class KaliyugaYearTable {
public:
    /// The connection must outlive the object.
    explicit KaliyugaYearTable(Connection &connection) : connection_(connection) {}
    KaliyugaYearTable(const KaliyugaYearTable &) = delete;
    KaliyugaYearTable &operator=(const KaliyugaYearTable &) = delete;
    ~KaliyugaYearTable() = default;

    /// The row of a number in the cycle; nothing where the table has none. Raises StoreError,
    /// DamagedRow for a row without values.
    std::optional<KaliyugaYear> RowOf(int Yearno);

private:
    Connection &connection_;
    std::map<int, KaliyugaYear> read_;
};

} // namespace kelvaro::store
