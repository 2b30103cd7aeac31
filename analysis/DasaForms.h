#pragma once

#include "horoscope/record/DasaForm.h"
#include "horoscope/record/Names.h"
#include "panchanga/clsStar.h"
#include "store/tables/BhuktiTable.h"

#include <span>
#include <string>
#include <vector>

namespace kelvaro {

/// The Vimshottari scheme of a birth, named in the language of the run.
struct NamedScheme {
    double balance = 0; ///< years of the first dasa that are left at birth
    std::vector<DasaPeriod> dasas;
    std::vector<DasaPeriod> bhuktis; ///< without those that ended before birth
    std::vector<DasaPeriod> antras;
};

/// The scheme from the Moon's longitude (degrees, 0 to 360) at birth. `daysInYear` is the year of dasas and
/// antras. Each list is computed on its own and starts at birth, and each of its periods starts where the
/// one before it ended. Raises OverflowError where a period leaves the years 100 to 9999.
NamedScheme FindNamedScheme(double moonLongitude, Moment birth, double daysInYear, const Names &names,
                            clsStar &stars);

/// The balance of the first dasa at birth, as the window and as the report word it.
struct BalanceTexts {
    std::string window;
    std::string report;
};

BalanceTexts BalanceTextsOf(const NamedScheme &scheme);

// Lord, start, end and age of each period; ages are differences of calendar years.

TextGrid DasaGrid(const NamedScheme &scheme);
/// With a section for each dasa, as far as it has bhuktis left.
TextGrid BhuktiGrid(const NamedScheme &scheme);
/// With a section for each bhukti.
TextGrid AntraGrid(const NamedScheme &scheme);

/// The bhuktis as the database keeps them.
std::vector<store::Bhukti> BhuktiRows(const NamedScheme &scheme);

} // namespace kelvaro
