#pragma once

#include "horoscope/HoroscopeState.h"
#include "presentation/HoroscopeForms.h"
#include "report/ReportPages.h"

namespace kelvaro {

/// The page of the planet positions and the Ashtakavarga.
void AddPlanetsPage(const HoroscopeState &state, const HoroscopeForms &forms, ReportPages &pages);

/// The page of the vargas and the dasas.
void AddVargasPage(const HoroscopeState &state, const HoroscopeForms &forms, ReportPages &pages);

} // namespace kelvaro
