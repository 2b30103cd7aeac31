#include "store/tables/VargaTable.h"

#include "runtime/Numbers.h"

#include <string>

namespace kelvaro::store {

std::optional<std::int16_t> VargaTable::HouseNumber(std::string_view chartName, double degreesInRasi,
                                                    std::int16_t rasi) {
    const std::string degrees = NumberText(degreesInRasi);
    const std::string statement = "Select Housenumber from chartsmaster where  chartname ='" +
                                  std::string(chartName) + "'" + "and  startDegree <= " + degrees +
                                  " and EndDegree >" + degrees + " and RasiHouse =" + std::to_string(rasi);
    if (row_.IsOpen()) {
        row_.Close();
    }
    row_.Open(statement, connection_);
    if (row_.IsEndOfFile()) {
        return std::nullopt;
    }
    return ToInt16(row_.Number("HouseNumber"));
}

} // namespace kelvaro::store
