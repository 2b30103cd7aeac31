#pragma once

#include "horoscope/record/Names.h"
#include "panchanga/clsStar.h"

#include <string>
#include <vector>

namespace kelvaro {

/// What the tables of planets and of houses say of a longitude (degrees, 0 to 360), a cell each: rasi, rasi
/// lord, star, pada, star lord, sub lord, in the language in force. Asks the given classifier once.
std::vector<std::string> LongitudeCells(const Names &names, clsStar &star, double longitude);

} // namespace kelvaro
