#include "panchanga/Sign.h"

#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <cmath>
#include <string>

namespace kelvaro {

namespace {

constexpr int lastSign = 12;

} // namespace

Sign::Sign(int number) : number_(static_cast<std::int16_t>(number)) {
    if (number < 1 || number > lastSign) {
        throw OverflowError("Overflow: there is no rasi " + std::to_string(number));
    }
}

Sign Sign::Plus(int signs) const {
    return Sign(((number_ - 1 + signs) % lastSign + lastSign) % lastSign + 1);
}

std::int16_t RasiOfLongitude(double longitude, double division) {
    int rasi = ToInt16(std::floor(longitude / division)) + 1;
    while (rasi > lastSign) {
        rasi -= lastSign;
    }
    return static_cast<std::int16_t>(rasi);
}

} // namespace kelvaro
