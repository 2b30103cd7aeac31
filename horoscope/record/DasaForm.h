#pragma once

#include "horoscope/record/Positions.h"
#include "horoscope/record/TextGrid.h"
#include "runtime/Moment.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace kelvaro {

/// A period of the Vimshottari scheme on any of its three levels.
struct DasaPeriod {
    Body lord;
    std::string lordName; ///< in the language of the run
    Moment start, end;
    int ageAtStart, ageAtEnd; ///< calendar years since the year of birth
    /// Place in the scheme, each from 0 to 8: the dasa from birth on, the bhukti in the dasa, the antra in
    /// the bhukti; 0 below the period's own level.
    std::size_t dasa, bhukti = 0, antra = 0;
};

/// The periods of a list that lie in a dasa, by its place.
inline std::span<const DasaPeriod> InDasa(std::span<const DasaPeriod> periods, std::size_t dasa) {
    return {std::ranges::lower_bound(periods, dasa, {}, &DasaPeriod::dasa),
            std::ranges::upper_bound(periods, dasa, {}, &DasaPeriod::dasa)};
}

/// Those in a bhukti, by the place of its dasa and its own.
inline std::span<const DasaPeriod> InBhukti(std::span<const DasaPeriod> periods, std::size_t dasa,
                                            std::size_t bhukti) {
    const auto ofDasa = InDasa(periods, dasa);
    return {std::ranges::lower_bound(ofDasa, bhukti, {}, &DasaPeriod::bhukti),
            std::ranges::upper_bound(ofDasa, bhukti, {}, &DasaPeriod::bhukti)};
}

/// The window of the dasas. Each grid has a row for each period of its list.
struct DasaForm {
    std::vector<DasaPeriod> dasas;
    std::vector<DasaPeriod> bhuktis;
    std::vector<DasaPeriod> antras;
    TextGrid mshDasa;
    TextGrid mshBukti; ///< sections group the rows by dasa
    TextGrid mshAntra; ///< sections group the rows by dasa and bhukti
    std::string Lab_DasaBalanceV;
};

} // namespace kelvaro
