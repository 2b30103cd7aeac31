#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "store/database/Connection.h"

#include <string>

namespace kelvaro {

enum class AntraSection { Without, With };

/// The whole horoscope as a report in plain text: pages separated by form feeds, lines of up to `pageWidth`
/// characters, each ended by CR LF.
///
/// Page 1 is the title page with the owner's letterhead, page 2 has the Rasi and the Navamsa chart, page 3
/// the Bhava chart and the houses, page 4 the planets and the Ashtakavarga, page 5 the vargas and the dasas,
/// page 6 the bhuktis; the antras follow with `AntraSection::With`. All is text that the record and the views
/// hold: the report only lays it out. A view that was never filled leaves its table empty and its chart out.
/// Raises StoreError when the letterhead or the row of a chart's cells cannot be read.
std::string ComposeReport(const HoroscopeState &state, const HoroscopeForms &forms,
                          store::Connection &connection, AntraSection antra);

} // namespace kelvaro
