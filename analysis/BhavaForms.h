#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/Houses.h"
#include "horoscope/record/Names.h"
#include "panchanga/clsStar.h"

namespace kelvaro {

/// The tables of the houses: their limits with the bodies within, and what their mid points say.
BhavaFeaturesForm BhavaTables(const Houses &found, const Names &names, clsStar &star);

} // namespace kelvaro
