#pragma once

#include "store/database/Connection.h"
#include "store/database/Recordset.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelvaro::store {

/// The classical rules of the divisional charts that plain division cannot express: `chartsmaster`.
class VargaTable {
public:
    /// The connection must outlive the object.
    explicit VargaTable(Connection &connection) : connection_(connection) {}

    /// The sign, 1 to 12, in the named chart of a body that stands so many degrees, 0 to below 30, in a rasi,
    /// 1 to 12. Nothing where the table has no row for it. Raises StoreError when the table cannot be read
    /// and ConversionError or OverflowError for a number that is none.
    std::optional<std::int16_t> HouseNumber(std::string_view chartName, double degreesInRasi,
                                            std::int16_t rasi);

private:
    Connection &connection_;
    Recordset row_;
};

} // namespace kelvaro::store
