#include "astronomy/theory/Ascendant.h"

#include "astronomy/theory/AngleReduction.h"

#include <cmath>

namespace kelvaro {

namespace {

/// The arc tangent of y / x in the half circle that the sign of `side` names, degrees.
double OnItsSide(double y, double x, bool isPlainQuotient, double side) {
    double angle = isPlainQuotient ? std::atan(y / x) : FnArcTan2(y, x);
    if (angle < 0) {
        angle += pi;
    }
    if (side < 0) {
        angle += pi;
    }
    return (180 / pi) * angle;
}

} // namespace

Ascendant FnFindLagna(double clockCenturies, double universalHours, double latitude, double longitude) {
    const double T = clockCenturies;
    const double siderealDegrees =
        ((6.6460656 + 2400.0513 * T + 2.58e-05 * T * T) + universalHours) * 15 - longitude;
    const double theta = FnNormalize360(siderealDegrees) * (pi / 180);
    const double obliquity = (23.452294 - 0.0130125 * T) * pi / 180;

    const double t = std::tan(theta);
    const double c = std::cos(theta);
    const double q =
        -std::sin(theta) * std::cos(obliquity) - std::sin(obliquity) * std::tan(latitude * pi / 180);
    Ascendant points;
    points.midHeaven = OnItsSide(t, std::cos(obliquity), t < 0, std::sin(theta));
    points.lagna = FnNormalize360(OnItsSide(c, q, c < 0, c));
    return points;
}

} // namespace kelvaro
