#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/Houses.h"
#include "horoscope/record/Names.h"

#include <cstdint>
#include <string_view>

namespace kelvaro {

/// Blanks the twelve cells of one array: 1, 3, 5 are South, North, East of the Rasi chart; 2, 4, 6 those of
/// the Navamsa chart; 9, 7, 8 those of the Bhava chart. Any other selector blanks nothing.
void ChartCellClear(HoroscopeForms &forms, std::int16_t selector);

/// Appends a body to a cell, `text` being its name there: kind "1" South Rasi (with the degrees in the sign),
/// "2" South Navamsa, "3" East Rasi, "5" East Navamsa. `signNo` is 1 to 12 and `position` the sidereal
/// longitude in degrees. Any other kind fills nothing. Raises OverflowError for a sign number outside 1
/// to 12.
void ChartCellFill(HoroscopeForms &forms, std::string_view kind, Body body, std::string_view text,
                   std::int16_t signNo, double position);

/// The house, 1 to 12, of a sign counted from the sign of the Lagna, both 1 to 12.
std::int16_t HouseFromLagna(std::int16_t lagnaSign, std::int16_t bodySign);

// Each of the charts is filled in one style, the frame of which becomes the visible one. An unknown style
// leaves the chart as it is.

/// The Rasi chart; the positions are those of its division size.
void FillRasiChart(const Positions &positions, const Names &names, ChartStyle style, HoroscopeForms &forms);

/// The Navamsa chart; the positions are those of its division size.
void FillNavamsaChart(const Positions &positions, const Names &names, ChartStyle style,
                      HoroscopeForms &forms);

/// The Bhava chart: the bodies of each house in the cell of its rasi, or of the house in the North style.
void FillBhavaChart(const Houses &houses, const Names &names, ChartStyle style, HoroscopeForms &forms);

} // namespace kelvaro
