#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "pages/PageSetter.h"

namespace kelvaro {

// A table that was never filled is left out with its heading.

/// Sets the planets with their karakas and avasthas, and the Ashtakavarga, on the page that is open.
void SetPlanetsPage(const HoroscopeForms &forms, PageSetter &setter);

/// Sets the vargas, and the dasas below the balance at birth.
void SetVargasPage(const HoroscopeState &state, const HoroscopeForms &forms, PageSetter &setter);

} // namespace kelvaro
