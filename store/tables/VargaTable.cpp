#include "store/tables/VargaTable.h"

#include "runtime/Numbers.h"
#include "store/database/Dialect.h"
#include "store/database/Recordset.h"

#include <algorithm>

namespace kelvaro::store {

std::optional<std::int16_t> VargaTable::HouseNumber(std::string_view chartName, double degreesInRasi,
                                                    std::int16_t rasi) {
    // Looked up to the fifteen digits that a number has as a text.
    const double degrees = NumberFromText(NumberText(degreesInRasi));
    const Bands &bands = BandsOf(std::string(chartName), rasi);
    const auto band = std::ranges::find_if(
        bands, [=](const Band &each) { return each.start <= degrees && each.end > degrees; });
    if (band == bands.end()) {
        return std::nullopt;
    }
    if (!band->damage.empty()) {
        throw StoreError(band->damage);
    }
    return band->house;
}

const VargaTable::Bands &VargaTable::BandsOf(const std::string &chartName, std::int16_t rasi) {
    const std::pair key(chartName, rasi);
    if (const auto known = read_.find(key); known != read_.end()) {
        return known->second;
    }
    Recordset rows;
    rows.Open("Select startDegree, EndDegree, HouseNumber from chartsmaster where chartname = " +
                  Quoted(chartName) + " and RasiHouse = " + std::to_string(rasi) +
                  " order by startDegree, EndDegree, HouseNumber",
              connection_);
    Bands bands;
    rows.ForEach([&bands](const Recordset &row) {
        Band band{row.Number("startDegree"), row.Number("EndDegree"), 0, {}};
        try {
            band.house = row.ShortInteger("HouseNumber");
        } catch (const DamagedRow &damage) {
            band.damage = damage.what();
        }
        bands.push_back(std::move(band));
    });
    return read_.emplace(key, std::move(bands)).first->second;
}

} // namespace kelvaro::store
