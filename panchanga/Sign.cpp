#include "panchanga/Sign.h"

#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <cmath>
#include <string>

namespace kelvaro {

namespace {

constexpr int signs = 12;

} // namespace

Sign::Sign(int number) : number_(static_cast<std::int16_t>(number)) {
    if (number < 1 || number > signs) {
        throw OverflowError("Overflow: there is no rasi " + std::to_string(number));
    }
}

Sign Sign::Plus(int count) const {
    return Sign(((number_ - 1 + count) % signs + signs) % signs + 1);
}

std::int16_t RasiOfLongitude(double longitude, double division) {
    int rasi = ToInt16(std::floor(longitude / division)) + 1;
    while (rasi > signs) {
        rasi -= signs;
    }
    return static_cast<std::int16_t>(rasi);
}

} // namespace kelvaro
