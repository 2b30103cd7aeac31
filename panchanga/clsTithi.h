#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro {

/// Classifies the Moon's distance from the Sun into the lunar day (tithi), its fortnight and the karana.
///
/// Set the inputs, call `FindTithi`, read the results. What a call does not assign keeps its earlier value: a
/// distance outside 0 to 360 assigns nothing. Fourteen of the names stand in both
/// fortnights.
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

/// A lunar day, with the karanas of its two halves.
struct LunarDay {
    std::int16_t number;   ///< 1 to 30
    std::string_view name; ///< fourteen of them stand in both fortnights
    std::string_view side; ///< "Bright" or "Dark"
    std::string_view firstKarana, secondKarana;
};

/// Raises OverflowError for a number outside 1 to 30.
const LunarDay &LunarDayOfNumber(int number);

// Of the lunar day of a Moon and a Sun, in degrees; empty or 0 for a distance outside 0 to 360.
std::string_view TithiNameOf(double moon, double sun);
std::string_view TithiSideOf(double moon, double sun);
std::int16_t TithiNumberOf(double moon, double sun);

} // namespace kelvaro
