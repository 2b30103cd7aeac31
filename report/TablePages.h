#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "report/ReportPages.h"

namespace kelvaro {

/// The page of the planet positions and the Ashtakavarga.
void AddPlanetsPage(const HoroscopeState &state, const HoroscopeForms &forms, ReportPages &pages);

/// The page of the vargas and the dasas.
void AddVargasPage(const HoroscopeState &state, const HoroscopeForms &forms, ReportPages &pages);

} // namespace kelvaro
