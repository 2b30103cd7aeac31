#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "store/database/Connection.h"

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

/// Longitudes of the ten bodies from Lagna to Ketu, degrees.
using VargaLongitudes = std::array<double, 10>;

/// Fills the grid of the divisional charts: a row for each of the 21, in it the short rasi name of each body.
/// Leaves the rasi numbers of the record at those of the Rasi chart. Raises StoreError where a lookup fails.
void FillVargas(HoroscopeState &state, VargasForm &form, store::Connection &connection);

/// Writes the row of one divisional chart, which is found by its name without regard to case; another name
/// writes nothing. `size` is the division in degrees, which does not count for a chart of the table. A chart
/// of the table reads the rasi numbers of the record, which must be those of the Rasi chart; where the table
/// has no row for a body, the cell of that body is left as it is. The grid must have its 21 rows.
void FillVargaRow(const HoroscopeState &state, const VargaLongitudes &longitudes, std::string_view chartName,
                  double size, VargaSource source, VargasForm &form, store::Connection &connection);

/// The short name of a rasi by its full name, in the language in force. Empty for any other text.
std::string RasiShortFromName(const HoroscopeState &state, std::string_view rasiName);

} // namespace kelvaro
