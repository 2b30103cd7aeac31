#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/Positions.h"

namespace kelvaro {

/// Ranks Sun to Saturn as Jaimini karakas, "Atma" first, and writes their names into column 8 of rows 1 to 7
/// of `mshNirayana`.
///
/// The ranking goes by the text of the degrees in the sign, the last in the order of characters first, and
/// not by the number: "9.10.3" stands before "12.5.7". Planets of the same text all take the karaka of the
/// last rank among them. Column 1 must hold those texts without a retrograde mark.
void RankKarakas(const Positions &positions, PlanetPositionsForm &form);

} // namespace kelvaro
