#pragma once

#include "runtime/Moment.h"

#include <cstdint>
#include <string>

namespace kelvaro {

/// The two karanas of a lunar day (tithi) and when each of them runs: one for either half of its span.
///
/// Set the inputs, call `FindKarnam`, read the results. The names are those that `clsTithi` gives in the two
/// halves of the tithi.
class clsKarnam {
public:
    std::string TithiNo; ///< input: "1" to "30", the bright fortnight first
    Moment TithiStart;   ///< input
    Moment TithiEnd;     ///< input
    std::int16_t TithiNumber = 0;
    std::string KarnamName1, KarnamName2;
    Moment KarnamStart1, KarnamStart2;
    Moment KarnamEnd1, KarnamEnd2; ///< the first ends where the second starts

    /// Raises ConversionError for a `TithiNo` that is no number, and OverflowError for one outside 1 to 30,
    /// with the results as they were.
    void FindKarnam();
};

} // namespace kelvaro
