#include "presentation/AngleText.h"

#include "runtime/Numbers.h"

#include <cmath>

namespace kelvaro {

namespace {

struct AngleParts {
    std::string degrees;
    std::int32_t minutes;
    std::int32_t seconds;
};

AngleParts Divide(double value) {
    const double size = std::abs(value);
    const double whole = std::trunc(size);
    const double fraction = size - whole;
    std::int32_t minutes = ToInt32(std::floor(fraction * 60));
    std::int32_t seconds = ToInt32(std::round(fraction * 3600 - minutes * 60));
    if (seconds >= 60) {
        // Minutes may reach 60 here and stay so: the degrees are not touched.
        minutes += 1;
        seconds -= 60;
    }
    // The sign is that of the angle, so that it also stands before zero degrees.
    std::string degrees(value < 0 ? "-" : "");
    return {degrees.append(NumberText(whole)), minutes, seconds};
}

} // namespace

double FoldToSign(double position) {
    return position < 30 ? position : std::fmod(position, 30);
}

std::string DegreeMinuteText(double value) {
    const AngleParts parts = Divide(value);
    return parts.degrees + "." + std::to_string(parts.minutes);
}

std::string DegreeMinuteSecondText(double value) {
    const AngleParts parts = Divide(value);
    return parts.degrees + "." + std::to_string(parts.minutes) + "." + std::to_string(parts.seconds);
}

} // namespace kelvaro
