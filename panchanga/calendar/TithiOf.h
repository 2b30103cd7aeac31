#pragma once

#include "panchanga/clsTithi.h"

namespace kelvaro {

// One result each of the lunar day of a Moon and a Sun, in degrees, asked of the classifier given. A distance
// that it cannot classify gives the result of its call before. Texts last until its next call.

const std::string &TithiNameOf(clsTithi &tithi, double moon, double sun);
std::int16_t TithiNumberOf(clsTithi &tithi, double moon, double sun);
const std::string &TithiSideOf(clsTithi &tithi, double moon, double sun);

} // namespace kelvaro
