#pragma once

#include "runtime/Moment.h"

#include <cstdint>
#include <string>

namespace kelvaro {

/// A stretch of time as a bar on the scale of a day: its caption, where it stands and in which colours.
class clsTimeDisplay {
public:
    /// Units of the scale from sunrise to sunset.
    static constexpr std::int32_t scaleWidth = 10000;

    Moment TimeStart, TimeEnd;       ///< input
    Moment Sunrisetime, Sunsettime;  ///< input: the ends of the scale
    std::string TimeCaption;         ///< "06:00:00 to 07:30:00"
    std::uint32_t TimeBackColor = 0; ///< 0xRRGGBB: parchment by day, brown for what begins outside the day
    std::uint32_t TimeForeColor = 0; ///< the other one of the two
    std::int32_t TimeWidth = 0;
    std::int32_t TimeLeft = 0; ///< negative before sunrise

    /// Raises ArithmeticError, with the results as they were, where the sunset is not after the sunrise, and
    /// OverflowError for a stretch that is beyond all measure of the day.
    void DisplayTime();
};

} // namespace kelvaro
