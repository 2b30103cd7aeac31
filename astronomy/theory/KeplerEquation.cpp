#include "astronomy/theory/KeplerEquation.h"

#include "astronomy/theory/AngleReduction.h"
#include "runtime/RuntimeError.h"
#include "runtime/Trigonometry.h"

#include <cmath>

namespace kelvaro {

OrbitAnomalies FnSolveKepler(double meanAnomaly, double eccentricity) {
    if (!(eccentricity >= 0 && eccentricity < 1)) {
        throw ArithmeticError("Invalid eccentricity of an orbit");
    }
    const double reduced = FnReduceRadians(meanAnomaly);
    double e = reduced;
    double rest = e - eccentricity * Sine(e) - reduced;
    // An invalid number fails this test too and so leaves the loop.
    while (std::abs(rest) >= 1e-06) {
        rest /= 1 - eccentricity * Cosine(e);
        e -= rest;
        rest = e - eccentricity * Sine(e) - reduced;
    }
    const double factor = std::sqrt((1 + eccentricity) / (1 - eccentricity));
    return {2 * ArcTangent(factor * Tangent(e / 2)), e};
}

} // namespace kelvaro
