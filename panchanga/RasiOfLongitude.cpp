#include "panchanga/RasiOfLongitude.h"

#include "runtime/Numbers.h"

#include <cmath>

namespace kelvaro {

std::int16_t RasiOfLongitude(double longitude, double division) {
    int rasi = ToInt16(std::floor(longitude / division)) + 1;
    while (rasi > 12) {
        rasi -= 12;
    }
    return static_cast<std::int16_t>(rasi);
}

} // namespace kelvaro
