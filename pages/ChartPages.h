#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "pages/PageSetter.h"

namespace kelvaro {

// Charts stand in the style of the preference, as the windows draw them. A chart that has no drawing in it,
// or was never filled, is left out.

/// Sets the Rasi and the Navamsa chart on the page that is open.
void SetChartsPage(const HoroscopeState &state, const HoroscopeForms &forms, PageSetter &setter);

/// Sets the Bhava chart and the table of the houses.
void SetBhavaPage(const HoroscopeState &state, const HoroscopeForms &forms, PageSetter &setter);

} // namespace kelvaro
