#include "astronomy/theory/OrbitalElements.h"

#include "astronomy/theory/AngleReduction.h"
#include "runtime/Numbers.h"

namespace kelvaro {

namespace {

/// Coefficients of 1, T, T squared, T cubed.
using Polynomial = std::array<double, 4>;

struct ElementRow {
    double L0; ///< mean longitude at the epoch, degrees
    double n;  ///< revolutions a century
    double l2, l3;
    Polynomial perihelion;
    Polynomial eccentricity;
    Polynomial inclination;
    Polynomial node;
    double semiMajorAxis;
};

constexpr std::array<ElementRow, 5> elementRows{{
    // Mercury
    {178.179078,
     415.2057519,
     0.0003011,
     0,
     {75.899697, 1.5554889, 0.0002947, 0},
     {0.20561421, 2.046e-05, -3e-08, 0},
     {7.002881, 0.0018608, -1.83e-05, 0},
     {47.145944, 1.1852083, 0.0001739, 0},
     0.3870986},
    // Venus
    {342.767053,
     162.5533664,
     0.0003097,
     0,
     {130.163833, 1.4080361, -0.0009764, 0},
     {0.00682069, -4.774e-05, 9.1e-08, 0},
     {3.393631, 0.0010058, -1e-06, 0},
     {75.779647, 0.89985, 0.00041, 0},
     0.7233316},
    // Mars
    {293.737334,
     53.17137642,
     0.0003107,
     0,
     {334.218203, 1.8407584, 0.0001299, -1.19e-06},
     {0.0933129, 9.2064e-05, 7.7e-08, 0},
     {1.850333, -0.000675, 1.26e-05, 0},
     {48.786442, 0.7709917, -1.4e-06, -5.33e-06},
     1.5236883},
    // Jupiter; the exponent of the third eccentricity coefficient is the table's, the term is nil in effect.
    {238.049257,
     8.434172183,
     0.0003347,
     -1.65e-06,
     {12.720972, 1.6099617, 0.00105627, -3.43e-06},
     {0.04833475, 0.00016418, -4.676e-77, -1.7e-09},
     {1.308736, -0.0056961, 3.9e-06, 0},
     {99.443414, 1.01053, 0.00035222, -8.51e-06},
     5.202561},
    // Saturn
    {266.564377,
     3.398638567,
     0.0003245,
     -5.8e-06,
     {91.098214, 1.9584158, 0.00082636, 4.61e-06},
     {0.05589232, -0.0003455, -7.28e-07, 7.4e-10},
     {2.492519, -0.0039189, -1.549e-05, 4e-08},
     {112.790414, 0.8731951, -0.00015218, -5.31e-06},
     9.554747},
}};

double At(const Polynomial &p, double T) {
    return p[0] + p[1] * T + p[2] * (T * T) + p[3] * (T * T * T);
}

} // namespace

OrbitalElements FnLoadElements(Planet planet, double centuries) {
    const ElementRow &row = elementRows.at(static_cast<std::size_t>(planet));
    const double T = centuries;
    return {FnNormalize360(row.L0 + 360 * FractionOf(row.n * T) + (row.l2 + row.l3 * T) * (T * T)),
            row.n * 0.009856263 + (row.l2 + row.l3) / 36525,
            At(row.perihelion, T),
            At(row.eccentricity, T),
            At(row.inclination, T),
            At(row.node, T),
            row.semiMajorAxis};
}

PlanetElements::PlanetElements(double centuries) {
    // The order in which the elements are loaded changes nothing: each row stands alone.
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_.at(i) = FnLoadElements(static_cast<Planet>(i), centuries);
    }
}

} // namespace kelvaro
