#pragma once

namespace kelvaro {

struct Horoscope;

/// One position pass: from the birth details of the record to its longitudes, rasi numbers under the division
/// size, ayanamsa, the limits of the day, and Gulika and Maandi with their rise moments. Raises
/// ConversionError for birth texts that are no date, and what the astronomy raises.
void ComputeChartPositions(Horoscope &horoscope, double division);

} // namespace kelvaro
