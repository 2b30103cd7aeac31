#pragma once

namespace kelvaro {

/// Powers of the time in Julian centuries from 1900 January 0.5.
struct TimePowers {
    double T = 0;
    double squared = 0;
    double cubed = 0;
};

struct MoonPlace {
    double longitude = 0; ///< tropical degrees, not brought to the circle
    double meanNode = 0;  ///< ascending, tropical degrees from -360 to 360
};

/// Brown's theory, truncated to fifty terms of longitude. No nutation but a constant.
MoonPlace FnFindMoon(const TimePowers &time);

} // namespace kelvaro
