#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "pages/PageSetter.h"

namespace kelvaro {

/// Sets a small chart for each row of the vargas, in the style of the preference, on the page that is open
/// and the one after it. Adds nothing where the vargas were never filled or the preference is no style.
void SetVargaCharts(const HoroscopeState &state, const VargasForm &form, PageSetter &setter);

/// Whether there are such charts.
bool HasVargaCharts(const HoroscopeState &state, const VargasForm &form);

} // namespace kelvaro
