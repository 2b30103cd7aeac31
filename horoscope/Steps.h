#pragma once

namespace kelvaro {

struct Horoscope;

// The steps of the driver. A step reads what it needs from the record, has it computed, and alone writes what
// it gets into the record and the views. Each raises what the functions below it raise.

/// Hides the views and empties them.
void LoadHoroscopeForms(Horoscope &horoscope);

/// A position pass with a division size in degrees: longitudes, rasi numbers, day of birth.
void ComputeChartPositions(Horoscope &horoscope, double division);

/// The names of the preferred language. An unknown language leaves those of the run before.
void LoadNamesForLanguage(Horoscope &horoscope);

/// Of the pass in force, that of the Rasi or that of the Navamsa. An unknown style fills no chart.
void FillRasiChart(Horoscope &horoscope);
void FillNavamsaChart(Horoscope &horoscope);

void FillAshtakavarga(Horoscope &horoscope);

/// The houses, their chart and their tables, after a position pass of its own.
void FillBhava(Horoscope &horoscope);

/// The table of planets, after a position pass of its own.
void FillPlanetPositions(Horoscope &horoscope);
void RefreshPlanetTable(Horoscope &horoscope);

void FillVargas(Horoscope &horoscope);

/// Balance, dasas, bhuktis and antras. Where the bhuktis cannot be stored, no antra is shown.
void FillDasa(Horoscope &horoscope);

} // namespace kelvaro
