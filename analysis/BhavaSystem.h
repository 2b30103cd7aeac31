#pragma once

#include "horoscope/record/Houses.h"
#include "horoscope/record/Names.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelvaro {

/// Brings degrees to 0 up to below 360 and writes them back into the argument as well. Raises ArithmeticError
/// for an angle too large to be one, NaN included.
double Normalize360(double &degrees);

/// Takes 12 off while the number is 13 or above.
std::int16_t Reduce12(std::int16_t number);

/// The bodies, Sun to Ketu, from `start` to `end` (degrees), both limits included.
///
/// A house with a start of 329 or more and an end of 345 or less counts as one across 0 degrees and is read
/// as two ranges, start to 360 and then 0 to end; a body in both is named twice. Every other house is the
/// plain range, which holds nothing where the start lies above the end.
std::vector<Body> BodiesInBhava(const Positions &positions, double start, double end);

/// Their short names, separated by a blank.
std::string PlanetsInBhava(const Positions &positions, const Names &names, double start, double end);

/// The twelve houses from Lagna and Midheaven: start, mid point, sandhi, rasi and bodies of each. The Lagna
/// opens house 1.
///
/// The arcs between Midheaven and Lagna are cut into six steps a quarter. `NotEqual` takes every other step,
/// from the Lagna on, as the start of a house; the others take the same steps as the mid points.
Houses HousesOf(const Positions &positions, HouseSystem system, const Names &names);

} // namespace kelvaro
