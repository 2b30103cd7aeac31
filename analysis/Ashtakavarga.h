#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "panchanga/clsStar.h"

namespace kelvaro {

/// Fills the grid of the benefic points (bindus): a row for each rasi and one for the totals; a column for
/// each of the seven planets, the Lagna and Rahu, then the sum of the seven and the sum of all nine. Runs
/// while the rasi numbers of the record are those of the Rasi chart. Keeps star, pada and Navamsa sign of the
/// Moon in the record. Raises OverflowError for rasi numbers outside 1 to 12.
void FillAshtakavarga(HoroscopeState &state, AshtakavargaForm &form, clsStar &stars);

} // namespace kelvaro
