#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro {

/// Classifies the Moon's distance from the Sun into the lunar day (tithi), its fortnight and the karana.
///
/// Set the inputs, call `FindTithi`, read the results. What a call does not assign keeps its earlier value: a
/// distance outside 0 to 360 assigns nothing. Fifteen of the names stand in both fortnights.
class clsTithi {
public:
    double sunC = 0;  ///< degrees, 0 to 360
    double moonA = 0; ///< degrees, 0 to 360
    std::string Tithi;
    std::string TithiPosition; ///< "Bright" or "Dark"
    std::int16_t TithiNo = 0;  ///< 1 to 30
    std::string Karnam;

    void FindTithi();
};

/// The karanas of the two halves of a tithi.
struct Karanas {
    std::string_view first, second;
};

/// Raises OverflowError for a number of a tithi outside 1 to 30.
Karanas KaranasOf(std::int16_t tithiNo);

} // namespace kelvaro
