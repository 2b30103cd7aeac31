#pragma once

#include <cstdint>
#include <string>

namespace kelvaro {

/// Classifies a sidereal longitude into its star (nakshatra), quarter (pada) and the Navamsa sign of that
/// quarter.
///
/// Set the input, call `findstar`, read the results. What a call does not assign keeps its earlier value. The
/// stars number 1 to 28, since the end of Uttarashada counts as Abijit, 22; from Shravana on the number is
/// one above the star's place among the 27.
class clsStar {
public:
    double PlanetPosition = 0; ///< degrees, 0 to 360
    std::string StarName;
    std::int16_t StarQuarter = 0; ///< 1 to 4
    std::string House;            ///< always empty
    std::int16_t HouseNo = 0;     ///< 1 to 12; kept from the call before in Poorvashada and Uttarashada
    std::int16_t StarNo = 0;      ///< 1 to 28
    double StarPadaDistance = 0;  ///< degrees to the end of the pada, with fixed irregular ends in some padas

    void findstar();

private:
    double position_ = 0;
    std::string name_;
};

} // namespace kelvaro
