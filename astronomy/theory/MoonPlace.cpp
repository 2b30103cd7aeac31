#include "astronomy/theory/MoonPlace.h"

#include "astronomy/theory/AngleReduction.h"
#include "runtime/Trigonometry.h"

#include <array>

namespace kelvaro {

namespace {

/// One term of the longitude: coefficient x E^power x sin(d D + m M + n M' + f F).
struct Term {
    double coefficient; ///< degrees
    int power;          ///< of the factor for the Earth's eccentricity
    double d, m, n, f;
};

constexpr std::array<Term, 50> terms{{
    {6.28875, 0, 0, 0, 1, 0},    {1.274018, 0, 2, 0, -1, 0},  {0.658309, 0, 2, 0, 0, 0},
    {0.213616, 0, 0, 0, 2, 0},   {-0.185596, 1, 0, 1, 0, 0},  {-0.114336, 0, 0, 0, 0, 2},
    {0.058793, 0, 2, 0, -2, 0},  {0.057212, 1, 2, -1, -1, 0}, {0.05332, 0, 2, 0, 1, 0},
    {0.045874, 1, 2, -1, 0, 0},  {0.041024, 1, 0, -1, 1, 0},  {-0.034718, 0, 1, 0, 0, 0},
    {-0.030465, 1, 0, 1, 1, 0},  {0.015326, 0, 2, 0, 0, -2},  {-0.012528, 0, 0, 0, 1, 2},
    {-0.01098, 0, 0, 0, -1, 2},  {0.010674, 0, 4, 0, -1, 0},  {0.010034, 0, 0, 0, 3, 0},
    {0.008548, 0, 4, 0, -2, 0},  {-0.00791, 1, 2, 1, -1, 0},  {-0.006783, 1, 2, 1, 0, 0},
    {0.005162, 0, -1, 0, 1, 0},  {0.005, 1, 1, 1, 0, 0},      {0.004049, 1, 2, -1, 1, 0},
    {0.003996, 0, 2, 0, 2, 0},   {0.003862, 0, 4, 0, 0, 0},   {0.003665, 0, 2, 0, -3, 0},
    {0.002695, 1, 0, -1, 2, 0},  {0.002602, 0, -2, 0, 1, -2}, {0.002396, 1, 2, -1, -2, 0},
    {-0.002349, 0, 1, 0, 1, 0},  {0.002249, 2, 2, -2, 0, 0},  {-0.002125, 1, 0, 1, 2, 0},
    {-0.002079, 2, 0, 2, 0, 0},  {0.002059, 2, 2, -2, -1, 0}, {-0.001773, 0, 2, 0, 1, -2},
    {-0.001595, 0, 2, 0, 0, 2},  {0.00122, 1, 4, -1, -1, 0},  {-0.00111, 0, 0, 0, 2, 2},
    {0.000892, 0, -3, 0, 1, 0},  {-0.000811, 1, 2, 1, 1, 0},  {0.000761, 1, 4, -1, -2, 0},
    {0.000717, 2, 0, -2, 1, 0},  {0.000704, 2, -2, -2, 1, 0}, {0.000693, 1, 2, 1, -2, 0},
    {0.000598, 1, 2, -1, 0, -2}, {0.00055, 0, 4, 0, 1, 0},    {0.000538, 0, 0, 0, 4, 0},
    {0.000521, 1, 4, -1, 0, 0},  {0.000486, 0, -1, 0, 2, 0},
}};

constexpr double toRadians = pi / 180;

/// Degrees.
struct Elements {
    double meanLongitude;
    double sunAnomaly;
    double moonAnomaly;
    double elongation;
    double nodeDistance;
    double node;
};

Elements MeanElements(const TimePowers &t) {
    return {
        270.434164 + 481267.8831 * t.T - 0.001133 * t.squared + 1.9e-06 * t.cubed,
        358.475833 + 35999.0498 * t.T - 0.00015 * t.squared - 3.3e-06 * t.cubed,
        296.104608 + 477198.8491 * t.T + 0.009192 * t.squared + 1.44e-05 * t.cubed,
        350.737486 + 445267.1142 * t.T - 0.001436 * t.squared + 1.9e-06 * t.cubed,
        11.250889 + 483202.0251 * t.T - 0.003211 * t.squared - 3e-07 * t.cubed,
        259.183275 - 1934.142 * t.T + 0.002078 * t.squared + 2.2e-06 * t.cubed,
    };
}

/// Adds the long-period corrections of the elements.
void Correct(Elements &e, const TimePowers &t) {
    const double nodeRadians = e.node * pi / 180;
    const double a1 = Sine((51.2 + 20.2 * t.T) * pi / 180);
    const double a2 = 0.003964 * Sine((346.56 + 132.87 * t.T - 0.0091731 * t.squared) * pi / 180);
    const double sinNode = Sine(nodeRadians);
    e.meanLongitude += 0.000233 * a1;
    e.meanLongitude += a2 + 0.001964 * sinNode;
    e.sunAnomaly -= 0.001778 * a1;
    e.moonAnomaly += 0.000817 * a1;
    e.moonAnomaly += a2 + 0.002541 * sinNode;
    e.elongation += 0.002011 * a1;
    e.elongation += a2 + 0.001964 * sinNode;
    e.nodeDistance += a2 - 0.024691 * sinNode;
    e.nodeDistance -= 0.004328 * Sine((275.05 - 2.3 * t.T) * pi / 180 + nodeRadians);
}

} // namespace

MoonPlace FnFindMoon(const TimePowers &time) {
    Elements elements = MeanElements(time);
    Correct(elements, time);
    const double E = 1 - 0.002495 * time.T - 7.52e-06 * time.squared;
    const std::array<double, 3> eccentricityFactor{1, E, E * E};
    const double D = FnReduceDegrees(elements.elongation) * toRadians;
    const double M = FnReduceDegrees(elements.sunAnomaly) * toRadians;
    const double N = FnReduceDegrees(elements.moonAnomaly) * toRadians;
    const double F = FnReduceDegrees(elements.nodeDistance) * toRadians;

    double longitude = FnReduceDegrees(elements.meanLongitude);
    for (const Term &term : terms) {
        longitude += term.coefficient * eccentricityFactor.at(static_cast<std::size_t>(term.power)) *
                     Sine(term.d * D + term.m * M + term.n * N + term.f * F);
    }
    return {longitude + 0.00461, FnReduceDegrees(elements.node)};
}

} // namespace kelvaro
