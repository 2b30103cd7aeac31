#include "horoscope/Horoscope.h"

#include "horoscope/Calculators.h"

namespace kelvaro {

Horoscope::Horoscope(store::Connection &opened, StatusDisplay &display)
    : calculators(std::make_unique<Calculators>(opened)), connection(opened), status(display) {}

Horoscope::~Horoscope() = default;

} // namespace kelvaro
