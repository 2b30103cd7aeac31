#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "pages/PageSetter.h"

namespace kelvaro {

/// Whether there are charts of the vargas: they were filled, and the Rasi chart shows the preferred style.
bool HasVargaCharts(const HoroscopeState &state, const HoroscopeForms &forms);

/// Sets a small chart for each row of the vargas, in the style of the preference, on the page that is open
/// and the one after it. There must be such charts.
void SetVargaCharts(const HoroscopeState &state, const HoroscopeForms &forms, PageSetter &setter);

} // namespace kelvaro
