#include "astronomy/theory/Ascendant.h"

#include "astronomy/theory/AngleReduction.h"
#include "runtime/Trigonometry.h"

namespace kelvaro {

namespace {

/// The arc tangent of y / x in the half circle that the sign of `side` names, degrees.
double OnItsSide(double y, double x, bool isPlainQuotient, double side) {
    double angle = isPlainQuotient ? ArcTangent(y / x) : FnArcTan2(y, x);
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

    const double t = Tangent(theta);
    const double c = Cosine(theta);
    const double q = -Sine(theta) * Cosine(obliquity) - Sine(obliquity) * Tangent(latitude * pi / 180);
    Ascendant points;
    points.midHeaven = OnItsSide(t, Cosine(obliquity), t < 0, Sine(theta));
    points.lagna = FnNormalize360(OnItsSide(c, q, c < 0, c));
    return points;
}

} // namespace kelvaro
