#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "panchanga/clsStar.h"

namespace kelvaro {

/// Computes the houses of the record and fills what shows them: the chart of `frm_BhavaChart` in the
/// preferred style, the table of limits and bodies and the table of mid points in `frm_CBhava`.
///
/// The longitudes of the record must be those of the birth: the driver runs a position pass right before. A
/// style that is none of the three words leaves the chart as it is.
void FillBhava(HoroscopeState &state, HoroscopeForms &forms, clsStar &star);

} // namespace kelvaro
