#pragma once

#include "astronomy/ClsFindPlanetPosition.h"
#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "panchanga/clsStar.h"
#include "store/database/Connection.h"

namespace kelvaro {

/// Fills the three grids of the Vimshottari scheme and the balance at birth, and adds the bhuktis to
/// `tempBhukthi`.
///
/// Bhuktis that ended before birth are not listed; each bhukti belongs to a section of its dasa, each antra
/// to one of its dasa and bhukti. Ages are differences of calendar years. `chartNumber` is the number of the
/// saved chart, 0 for an unsaved one. Finds the Moon of the birth anew. Raises what the astronomy raises,
/// OverflowError where a period leaves the years 100 to 9999, and StoreError, with no row added and no antra
/// listed, where an insert fails.
void FillDasa(HoroscopeState &state, DasaForm &form, ClsFindPlanetPosition &position, clsStar &stars,
              store::Connection &connection, long chartNumber);

} // namespace kelvaro
