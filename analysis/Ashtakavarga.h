#pragma once

#include "horoscope/record/HoroscopeState.h"
#include "horoscope/record/TextGrid.h"
#include "panchanga/clsStar.h"

namespace kelvaro {

/// Star, pada and Navamsa sign of the Moon (degrees, 0 to 360). The sign is the one that the classifier has
/// kept from an earlier longitude where this one leaves it.
MoonStar MoonStarOf(double moonLongitude, clsStar &stars);

/// The benefic points (bindus): a row for each rasi and one for the totals; a column for each of the seven
/// planets, the Lagna and Rahu, then the sum of the seven and the sum of all nine. The positions are those of
/// the Rasi chart. Raises OverflowError for rasi numbers outside 1 to 12.
TextGrid AshtakavargaGrid(const Positions &positions, const Names &names, Language language);

} // namespace kelvaro
