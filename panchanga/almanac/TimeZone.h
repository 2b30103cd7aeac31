#pragma once

#include <cstdint>

namespace kelvaro {

/// The time zone that belongs to a longitude by the Sun: an hour for each 15 degrees.
class TimeZone {
public:
    std::int16_t TZoneLongitudeDegree = 0; ///< East positive
    std::int16_t TZoneLongitudeMinute = 0; ///< never negative; goes to the side of the degrees
    double TimeZone = 0;                   ///< hours from Greenwich, East positive

    void findTimeZone();
};

} // namespace kelvaro
