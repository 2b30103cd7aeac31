#pragma once

#include "store/database/Connection.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kelvaro::store {

/// The classical rules of the divisional charts that plain division cannot express: `chartsmaster`, of which
/// the program reads the bands of each rasi of a chart once.
class VargaTable {
public:
    /// The connection must outlive the object.
    explicit VargaTable(Connection &connection) : connection_(connection) {}
    VargaTable(const VargaTable &) = delete;
    VargaTable &operator=(const VargaTable &) = delete;
    ~VargaTable() = default;

    /// The sign, 1 to 12, in the named chart of a body that stands so many degrees, 0 to below 30, in a rasi,
    /// 1 to 12. Nothing where the table has no row for it. Raises StoreError when the table cannot be read
    /// and for a sign that is no number.
    std::optional<std::int16_t> HouseNumber(std::string_view chartName, double degreesInRasi,
                                            std::int16_t rasi);

private:
    /// A stretch of a rasi, its start included and its end not.
    struct Band {
        double start, end; ///< degrees
        std::int16_t house;
        std::string damage; ///< of a house that is none, told only where a body falls into it
    };
    using Bands = std::vector<Band>;

    const Bands &BandsOf(const std::string &chartName, std::int16_t rasi);

    Connection &connection_;
    std::map<std::pair<std::string, std::int16_t>, Bands> read_;
};

} // namespace kelvaro::store
