#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/Names.h"
#include "store/tables/VargaTable.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro {

/// Where a divisional chart takes its rasis from.
enum class VargaSource : std::uint8_t {
    Computed = 0, ///< from the longitude, by plain division
    Table = 1,    ///< from `chartsmaster`, for the charts whose rules plain division cannot express
};

/// The ten bodies from Lagna to Ketu.
struct VargaPositions {
    std::array<double, 10> longitudes;  ///< degrees
    std::array<std::int16_t, 10> rasis; ///< of the Rasi chart, 1 to 12
};

/// The divisional charts: a row for each of the 21, in it the rasi of each body and its short name. Raises
/// what the table raises.
VargasForm VargaCharts(const Positions &positions, const Names &names, Language language,
                       store::VargaTable &table);

/// Writes the row of one divisional chart, which is found by its name without regard to case; another name
/// writes nothing. `size` is the division in degrees, which does not count for a chart of the table; where
/// the table has no row for a body, the cell of that body is left as it is. The form must have its 21 rows.
void FillVargaRow(const VargaPositions &positions, std::string_view chartName, double size,
                  VargaSource source, const Names &names, store::VargaTable &table, VargasForm &form);

/// The short name of a rasi by its full name, in the language of the names. Empty for any other text.
std::string RasiShortFromName(const Names &names, std::string_view rasiName);

} // namespace kelvaro
