#pragma once

#include <cstdint>
#include <string>

namespace kelvaro {

/// Classifies a sidereal longitude into its sign (rasi) and the half of the sign.
///
/// Set the inputs, call `findRasi`, read the results. What a call does not assign keeps its earlier value.
class clsRasi {
public:
    double PlanetPosition = 0; ///< degrees, 0 to 360
    std::string RasiName;
    std::int16_t RasiNo = 0;   ///< 1 to 12
    std::int16_t RasiHalf = 0; ///< 1 or 2
    std::string nchkLanguage;  ///< "Sanskrit" or "English"; with any other word nothing is found

    void findRasi();
};

} // namespace kelvaro
