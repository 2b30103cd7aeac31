#include "astronomy/theory/AngleReduction.h"
#include "astronomy/theory/PlanetTerms.h"
#include "runtime/Trigonometry.h"

#include <array>
#include <cstddef>
#include <span>

namespace kelvaro {

namespace {

/// The trigonometric factors of the series: sines and cosines of multiples of Q, V, Z, X and W.
// clang-format off
enum Factor : std::size_t {
    One,
    SinQ, CosQ, Sin2Q, Cos2Q, Sin3Q, Cos3Q, Sin4Q, Cos4Q,
    SinV, CosV, Sin2V, Cos2V,
    SinZ, CosZ, Sin2Z, Cos2Z, Sin3Z, Cos3Z, Sin4Z, Cos4Z, Sin5Z, Cos5Z,
    Sin2X, Cos2X, Sin3X, Cos3X,
    SinW,
    FactorCount
};
// clang-format on

/// A coefficient, as a polynomial in the slow time, times one or two factors.
struct Term {
    double constant, linear, quadratic;
    Factor first, second;
};

// Mean longitude, perihelion and latitude in degrees, eccentricity in units of 1e-07, semi-major axis in
// units of 1e-06.

constexpr std::array<Term, 23> jupiterMeanLongitude{{
    {0.003228, -0.064436, 0.002075, CosV, One},
    {0.331364, -0.010281, -0.004692, SinV, One},
    {-0.003083, -0.000275, 0.000489, Sin2V, One},
    {0.002472, 0, 0, SinW, One},
    {0.013619, 0, 0, SinZ, One},
    {0.018472, 0, 0, Sin2Z, One},
    {0.006717, 0, 0, Sin3Z, One},
    {0.002775, 0, 0, Sin4Z, One},
    {0.006417, 0, 0, Sin2Z, SinQ},
    {0.007275, -0.001253, 0, SinZ, SinQ},
    {0.002439, 0, 0, Sin3Z, SinQ},
    {-0.035681, -0.001208, 0, SinZ, CosQ},
    {-0.003767, 0, 0, Cos2Z, SinQ},
    {-0.033839, -0.001125, 0, CosZ, SinQ},
    {-0.004261, 0, 0, Sin2Z, CosQ},
    {-0.006333, 0.001161, 0, CosZ, CosQ},
    {0.002178, 0, 0, CosQ, One},
    {-0.006675, 0, 0, Cos2Z, CosQ},
    {-0.002664, 0, 0, Cos3Z, CosQ},
    {-0.002572, 0, 0, SinZ, Sin2Q},
    {-0.003567, 0, 0, Sin2Z, Sin2Q},
    {0.002094, 0, 0, CosZ, Cos2Q},
    {0.003342, 0, 0, Cos2Z, Cos2Q},
}};

constexpr std::array<Term, 29> jupiterEccentricity{{
    {3606, 130, -43, SinV, One}, {1289, -580, 0, CosV, One},  {-6764, 0, 0, SinZ, SinQ},
    {-1110, 0, 0, Sin2Z, SinQ},  {-224, 0, 0, Sin3Z, SinQ},   {-204, 0, 0, SinQ, One},
    {1284, 116, 0, CosZ, SinQ},  {188, 0, 0, Cos2Z, SinQ},    {1460, 130, 0, SinZ, CosQ},
    {224, 0, 0, Sin2Z, CosQ},    {-817, 0, 0, CosQ, One},     {6074, 0, 0, CosZ, CosQ},
    {992, 0, 0, Cos2Z, CosQ},    {508, 0, 0, Cos3Z, CosQ},    {230, 0, 0, Cos4Z, CosQ},
    {108, 0, 0, Cos5Z, CosQ},    {-956, -73, 0, SinZ, Sin2Q}, {448, 0, 0, Sin2Z, Sin2Q},
    {137, 0, 0, Sin3Z, Sin2Q},   {-997, 108, 0, CosZ, Sin2Q}, {480, 0, 0, Cos2Z, Sin2Q},
    {148, 0, 0, Cos3Z, Sin2Q},   {-956, 99, 0, SinZ, Cos2Q},  {490, 0, 0, Sin2Z, Cos2Q},
    {158, 0, 0, Sin3Z, Cos2Q},   {179, 0, 0, Cos2Q, One},     {1024, 75, 0, CosZ, Cos2Q},
    {-437, 0, 0, Cos2Z, Cos2Q},  {-132, 0, 0, Cos3Z, Cos2Q},
}};

constexpr std::array<Term, 18> jupiterPerihelion{{
    {0.007192, -0.003147, 0, SinV, One},
    {-0.004344, 0, 0, SinQ, One},
    {-0.020428, -0.000675, 0.000197, CosV, One},
    {0.034036, 0, 0, CosZ, SinQ},
    {0.007269, 0.000672, 0, SinZ, SinQ},
    {0.005614, 0, 0, Cos2Z, SinQ},
    {0.002964, 0, 0, Cos3Z, SinQ},
    {0.037761, 0, 0, SinZ, CosQ},
    {0.006158, 0, 0, Sin2Z, CosQ},
    {-0.006603, 0, 0, CosZ, CosQ},
    {-0.005356, 0, 0, SinZ, Sin2Q},
    {0.002722, 0, 0, Sin2Z, Sin2Q},
    {0.004483, 0, 0, CosZ, Sin2Q},
    {-0.002642, 0, 0, Cos2Z, Sin2Q},
    {0.004403, 0, 0, SinZ, Cos2Q},
    {-0.002536, 0, 0, Sin2Z, Cos2Q},
    {0.005547, 0, 0, CosZ, Cos2Q},
    {-0.002689, 0, 0, Cos2Z, Cos2Q},
}};

constexpr std::array<Term, 11> jupiterSemiMajorAxis{{
    {205, 0, 0, CosZ, One},
    {-263, 0, 0, CosV, One},
    {693, 0, 0, Cos2Z, One},
    {312, 0, 0, Cos3Z, One},
    {147, 0, 0, Cos4Z, One},
    {299, 0, 0, SinZ, SinQ},
    {181, 0, 0, Cos2Z, SinQ},
    {204, 0, 0, Sin2Z, CosQ},
    {111, 0, 0, Sin3Z, CosQ},
    {-337, 0, 0, CosZ, CosQ},
    {-111, 0, 0, Cos2Z, CosQ},
}};

constexpr std::array<Term, 24> saturnMeanLongitude{{
    {0.007581, 0, 0, Sin2V, One},
    {-0.007986, 0, 0, SinW, One},
    {-0.148811, 0, 0, SinZ, One},
    {-0.040786, 0, 0, Sin2Z, One},
    {-0.814181, 0.01815, -0.016714, SinV, One},
    {-0.010497, 0.160906, -0.0041, CosV, One},
    {-0.015208, 0, 0, Sin3Z, One},
    {-0.006339, 0, 0, Sin4Z, One},
    {-0.006244, 0, 0, SinQ, One},
    {-0.0165, 0, 0, Sin2Z, SinQ},
    {0.008931, 0.002728, 0, SinZ, SinQ},
    {-0.005775, 0, 0, Sin3Z, SinQ},
    {0.081344, 0.003206, 0, CosZ, SinQ},
    {0.015019, 0, 0, Cos2Z, SinQ},
    {0.085581, 0.002494, 0, SinZ, CosQ},
    {0.014394, 0, 0, Cos2Z, CosQ},
    {0.025328, -0.003117, 0, CosZ, CosQ},
    {0.006319, 0, 0, Cos3Z, CosQ},
    {0.006369, 0, 0, SinZ, Sin2Q},
    {0.009156, 0, 0, Sin2Z, Sin2Q},
    {0.007525, 0, 0, Sin3X, Sin2Q},
    {-0.005236, 0, 0, CosZ, Cos2Q},
    {-0.007736, 0, 0, Cos2Z, Cos2Q},
    {-0.007528, 0, 0, Cos3X, Cos2Q},
}};

constexpr std::array<Term, 49> saturnEccentricity{{
    {-12696, 0, 0, SinZ, CosQ},   {-4200, 0, 0, Sin2Z, CosQ},    {-1503, 0, 0, Sin3Z, CosQ},
    {-619, 0, 0, Sin4Z, CosQ},    {-268, 0, 0, Sin5Z, CosQ},     {-282, -1306, 0, CosZ, CosQ},
    {-86, 230, 0, Cos2Z, CosQ},   {461, 0, 0, Sin2X, CosQ},      {-350, 0, 0, Sin2Q, One},
    {2211, -286, 0, SinZ, Sin2Q}, {-2208, 0, 0, Sin2Z, Sin2Q},   {-568, 0, 0, Sin3Z, Sin2Q},
    {-346, 0, 0, Sin4Z, Sin2Q},   {-2780, -222, 0, CosZ, Sin2Q}, {2022, 263, 0, Cos2Z, Sin2Q},
    {248, 0, 0, Cos3Z, Sin2Q},    {242, 0, 0, Sin3X, Sin2Q},     {467, 0, 0, Cos3X, Sin2Q},
    {-490, 0, 0, Cos2Q, One},     {-2842, -279, 0, SinZ, Cos2Q}, {13381, 1226, -253, CosV, One},
    {-7927, 2548, 91, SinV, One}, {248, -121, 0, Sin2V, One},    {-305, -91, 0, Cos2V, One},
    {412, 0, 0, Sin2Z, One},      {12415, 0, 0, SinQ, One},      {390, -617, 0, SinZ, SinQ},
    {165, -204, 0, Sin2Z, SinQ},  {26599, 0, 0, CosZ, SinQ},     {-4687, 0, 0, Cos2Z, SinQ},
    {-1870, 0, 0, Cos3Z, SinQ},   {-821, 0, 0, Cos4Z, SinQ},     {-377, 0, 0, Cos5Z, SinQ},
    {497, 0, 0, Cos2X, SinQ},     {163, -611, 0, CosQ, One},     {128, 226, 0, Sin2Z, Cos2Q},
    {224, 0, 0, Sin3Z, Cos2Q},    {-1594, 282, 0, CosZ, Cos2Q},  {2162, -207, 0, Cos2Z, Cos2Q},
    {561, 0, 0, Cos3Z, Cos2Q},    {343, 0, 0, Cos4Z, Cos2Q},     {469, 0, 0, Sin3X, Cos2Q},
    {-242, 0, 0, Cos3X, Cos2Q},   {-205, 0, 0, SinZ, Sin3Q},     {262, 0, 0, Sin3Z, Sin3Q},
    {208, 0, 0, CosZ, Cos3Q},     {-271, 0, 0, Cos3Z, Cos3Q},    {-382, 0, 0, Cos3Z, Sin4Q},
    {-376, 0, 0, Sin3Z, Cos4Q},
}};

constexpr std::array<Term, 16> saturnPerihelion{{
    {0.077108, 0.007186, -0.001533, SinV, One},
    {-0.007075, 0, 0, SinZ, One},
    {0.045803, -0.014766, -0.000536, CosV, One},
    {-0.072586, 0, 0, CosQ, One},
    {-0.075825, 0, 0, SinZ, SinQ},
    {-0.024839, 0, 0, Sin2Z, SinQ},
    {-0.008631, 0, 0, Sin3Z, SinQ},
    {-0.150383, 0, 0, CosZ, CosQ},
    {0.026897, 0, 0, Cos2Z, CosQ},
    {0.010053, 0, 0, Cos3Z, CosQ},
    {-0.013597, -0.001719, 0, SinZ, Sin2Q},
    {0.011981, 0, 0, Sin2Z, Cos2Q},
    {-0.007742, 0.001517, 0, CosZ, Sin2Q},
    {0.000522, -0.003003, 0, Cos2Z, Cos2Q},
    {-0.013667, 0.001239, 0, SinZ, Cos2Q},
    {0.014861, 0.001136, 0, CosZ, Cos2Q},
}};

constexpr std::array<Term, 36> saturnSemiMajorAxis{{
    {688, 0, 0, Sin2Z, SinQ},   {495, 0, 0, Cos2Z, Sin2Q},   {250, 0, 0, Cos3Z, Sin2Q},
    {-393, 0, 0, Sin3Z, SinQ},  {-856, 0, 0, SinZ, Cos2Q},   {-228, 0, 0, Sin4Z, SinQ},
    {441, 0, 0, Sin2Z, Cos2Q},  {2138, 0, 0, CosZ, SinQ},    {296, 0, 0, Cos2Z, Cos2Q},
    {-999, 0, 0, Cos2Z, SinQ},  {211, 0, 0, Cos3Z, Cos2Q},   {-642, 0, 0, Cos3Z, SinQ},
    {-427, 0, 0, SinZ, Sin3Q},  {-325, 0, 0, Cos4Z, SinQ},   {398, 0, 0, Sin3Z, Sin3Q},
    {-890, 0, 0, CosQ, One},    {344, 0, 0, CosZ, Cos3Q},    {2206, 0, 0, SinZ, CosQ},
    {-427, 0, 0, Cos3Z, Cos3Q}, {572, 0, 0, SinV, One},      {-1590, 0, 0, Sin2Z, CosQ},
    {2933, 0, 0, CosV, One},    {-647, 0, 0, Sin3Z, CosQ},   {33629, 0, 0, CosZ, One},
    {-344, 0, 0, Sin4Z, CosQ},  {-3081, 0, 0, Cos2Z, One},   {2885, 0, 0, CosZ, CosQ},
    {-1423, 0, 0, Cos3Z, One},  {2172, 102, 0, Cos2Z, CosQ}, {-671, 0, 0, Cos4Z, One},
    {296, 0, 0, Cos3Z, CosQ},   {-320, 0, 0, Cos5Z, One},    {-267, 0, 0, Sin2Z, Sin2Q},
    {1098, 0, 0, SinQ, One},    {-778, 0, 0, CosZ, Sin2Q},   {-2812, 0, 0, SinZ, SinQ},
}};

constexpr std::array<Term, 6> saturnLatitude{{
    {0.000747, 0, 0, CosZ, SinQ},
    {0.001069, 0, 0, CosZ, CosQ},
    {0.002108, 0, 0, Sin2Z, Sin2Q},
    {0.001261, 0, 0, Cos2Z, Sin2Q},
    {0.001236, 0, 0, Sin2Z, Cos2Q},
    {-0.002075, 0, 0, Cos2Z, Cos2Q},
}};

/// The arguments of the great inequality at a time, ready as factors.
struct GreatArguments {
    double slowTime = 0;
    std::array<double, FactorCount> factors{};
};

GreatArguments FnFindGreatArgs(double T) {
    const double P = FnReduceRadians(4.14473 + 52.9691 * T);
    const double Q = FnReduceRadians(4.641118 + 21.32991 * T);
    const double S = FnReduceRadians(4.250177 + 7.478172 * T);
    const double V = 5 * Q - 2 * P;
    const double W = 2 * P - 6 * Q + 3 * S;
    const double Z = Q - P;
    const double X = S - Q;

    GreatArguments arguments;
    arguments.slowTime = T / 5 + 0.1;
    arguments.factors[One] = 1;
    const auto set = [&](double angle, Factor sine, Factor cosine) {
        arguments.factors.at(sine) = Sine(angle);
        arguments.factors.at(cosine) = Cosine(angle);
    };
    set(Q, SinQ, CosQ);
    set(2 * Q, Sin2Q, Cos2Q);
    set(3 * Q, Sin3Q, Cos3Q);
    set(4 * Q, Sin4Q, Cos4Q);
    set(V, SinV, CosV);
    set(2 * V, Sin2V, Cos2V);
    set(Z, SinZ, CosZ);
    set(2 * Z, Sin2Z, Cos2Z);
    set(3 * Z, Sin3Z, Cos3Z);
    set(4 * Z, Sin4Z, Cos4Z);
    set(5 * Z, Sin5Z, Cos5Z);
    set(2 * X, Sin2X, Cos2X);
    set(3 * X, Sin3X, Cos3X);
    arguments.factors[SinW] = Sine(W);
    return arguments;
}

double Sum(std::span<const Term> terms, const GreatArguments &arguments) {
    const double t = arguments.slowTime;
    double sum = 0;
    for (const Term &term : terms) {
        sum += (term.constant + term.linear * t + term.quadratic * (t * t)) *
               arguments.factors.at(term.first) * arguments.factors.at(term.second);
    }
    return sum;
}

/// The series of one planet; Jupiter has none of latitude.
struct Series {
    std::span<const Term> meanLongitude, eccentricity, perihelion, semiMajorAxis, latitude;
};

OrbitCorrections Corrections(const Series &series, double centuries, double eccentricity) {
    const GreatArguments arguments = FnFindGreatArgs(centuries);
    OrbitCorrections corrections;
    corrections.meanLongitude = Sum(series.meanLongitude, arguments) * degreesToRadians;
    corrections.eccentricity = Sum(series.eccentricity, arguments) * 1e-07;
    corrections.meanAnomaly =
        corrections.meanLongitude - Sum(series.perihelion, arguments) * degreesToRadians / eccentricity;
    corrections.semiMajorAxis = Sum(series.semiMajorAxis, arguments) * 1e-06;
    corrections.latitude = Sum(series.latitude, arguments) * degreesToRadians;
    return corrections;
}

} // namespace

OrbitCorrections FnJupiterTerms(double centuries, double eccentricity) {
    return Corrections(
        {jupiterMeanLongitude, jupiterEccentricity, jupiterPerihelion, jupiterSemiMajorAxis, {}}, centuries,
        eccentricity);
}

OrbitCorrections FnSaturnTerms(double centuries, double eccentricity) {
    return Corrections(
        {saturnMeanLongitude, saturnEccentricity, saturnPerihelion, saturnSemiMajorAxis, saturnLatitude},
        centuries, eccentricity);
}

} // namespace kelvaro
