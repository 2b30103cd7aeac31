#pragma once

#include "horoscope/record/HoroscopeState.h"

#include <cstdint>
#include <string>

namespace kelvaro {

/// Brings degrees to 0 up to below 360 and writes them back into the argument as well. Raises ArithmeticError
/// for an angle too large to be one, NaN included.
double Normalize360(double &degrees);

/// Takes 12 off while the number is 13 or above.
std::int16_t Reduce12(std::int16_t number);

/// The short names of the bodies, Sun to Ketu, from `start` to `end` (degrees), both limits included,
/// separated by a blank.
///
/// A house with a start of 329 or more and an end of 345 or less counts as one across 0 degrees and is read
/// as two ranges, start to 360 and then 0 to end; a body in both is named twice. Every other house is the
/// plain range, which holds nothing where the start lies above the end.
std::string PlanetsInBhava(const HoroscopeState &state, double start, double end);

/// Computes the twelve houses of the record from `LagnaLon` and `MidHeaven`, by `BhavaSystem`: start, mid
/// point, sandhi, rasi and bodies of each.
///
/// The arcs between Midheaven and Lagna are cut into six steps a quarter. "Not Equal" takes every other step,
/// from the Lagna on, as the start of a house; any other word takes the same steps as the mid points.
void FindBhavas(HoroscopeState &state);

} // namespace kelvaro
