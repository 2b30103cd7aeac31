#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelvaro {

/// The style of a preference word "South", "East" or "North"; nothing for any other text.
std::optional<ChartStyle> ChartStyleOf(std::string_view word);

/// Blanks the twelve cells of one array: 1, 3, 5 are South, North, East of the Rasi chart; 2, 4, 6 those of
/// the Navamsa chart; 9, 7, 8 those of the Bhava chart. Any other selector blanks nothing.
void ChartCellClear(HoroscopeForms &forms, std::int16_t selector);

/// Appends a body to a cell: kind "1" South Rasi (with the degrees in the sign), "2" South Navamsa, "3" East
/// Rasi, "5" East Navamsa. `signNo` is 1 to 12 and `position` the sidereal longitude in degrees. Any other
/// kind fills nothing. Raises OverflowError for a sign number outside 1 to 12.
void ChartCellFill(HoroscopeForms &forms, std::string_view kind, std::string_view text, std::int16_t signNo,
                   double position);

/// The house, 1 to 12, of a sign counted from the sign of the Lagna, both 1 to 12.
std::int16_t HouseFromLagna(std::int16_t lagnaSign, std::int16_t bodySign);

/// Fills the Rasi chart in the preferred style from the names, rasi numbers and longitudes of the record and
/// makes its frame the visible one. A style that is none of the three words leaves the chart as it is.
void FillRasiChart(const HoroscopeState &state, HoroscopeForms &forms);

/// The same for the Navamsa chart, while the rasi numbers of the record are Navamsa numbers.
void FillNavamsaChart(const HoroscopeState &state, HoroscopeForms &forms);

} // namespace kelvaro
