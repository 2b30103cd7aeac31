#pragma once

#include "horoscope/record/HoroscopeState.h"

namespace kelvaro {

/// Fills the name tables of the record from its `Language`, "English" or "Sanskrit". Any other language
/// leaves them.
void LoadNamesForLanguage(HoroscopeState &state);

} // namespace kelvaro
