#pragma once

#include <cstdint>
#include <string>

namespace kelvaro {

/// Classifies the sum of the longitudes of Sun and Moon into the yoga.
///
/// Set the inputs, call `findyoga`, read the results. What a call does not assign keeps its earlier value: a
/// sum below 0, or above 360 after a circle was taken off once, assigns nothing.
class clsYoga {
public:
    double sun_position = 0;  ///< degrees, 0 to 360
    double moon_position = 0; ///< degrees, 0 to 360
    std::string YogaName;
    std::int16_t YogaNo = 0; ///< 1 to 27

    void findyoga();
};

} // namespace kelvaro
