#include "astronomy/theory/AngleReduction.h"

#include "runtime/RuntimeError.h"
#include "runtime/Trigonometry.h"

#include <cmath>

namespace kelvaro {

namespace {

/// Far beyond every angle of a legal date; above it single circles would be taken off without end.
constexpr double largestAngle = 1e9;

double BroughtToCircle(double angle, double circle) {
    if (!(std::abs(angle) <= largestAngle)) {
        throw ArithmeticError("Overflow: an angle too large to be brought to the circle");
    }
    while (angle < 0) {
        angle += circle;
    }
    while (angle > circle) {
        angle -= circle;
    }
    return angle;
}

} // namespace

double FnNormalize360(double degrees) {
    return BroughtToCircle(degrees, 360);
}

double FnReduceDegrees(double degrees) {
    return degrees - std::trunc(degrees / 360) * 360;
}

double FnReduceRadians(double radians) {
    return radians - std::floor(radians / fullCircle) * fullCircle;
}

double NormalizeRadians(double radians) {
    return BroughtToCircle(radians, fullCircle);
}

double FnArcSin(double x) {
    return ArcTangent(x / std::sqrt(1 - x * x));
}

double FnArcTan2(double y, double x) {
    if (x < 0) {
        return ArcTangent(y / x) + pi;
    }
    if (x > 0) {
        return y >= 0 ? ArcTangent(y / x) : ArcTangent(y / x) + 6.28318530717958;
    }
    if (y > 0) {
        return pi / 2;
    }
    return y < 0 ? 9.42477796076937 / 2 : 0;
}

double SignedDegrees(double degrees, double minutes) {
    return degrees < 0 ? degrees - minutes / 60 : degrees + minutes / 60;
}

} // namespace kelvaro
