// The perturbation series once more, written as printed formulas. The program keeps them as coefficient
// tables; a digit that slipped in either of the two shows here.

#include "astronomy/theory/PlanetTerms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

namespace kelvaro {
namespace {

using std::cos;
using std::sin;

constexpr double deg = 0.01745329252;

struct Sample {
    double T = 0;
    double e = 0;
    MeanAnomalies M;
};

OrbitCorrections PrintedMercury(const Sample &sample) {
    const auto [Mm, Mv, Me, Mr, Mj] = sample.M;
    OrbitCorrections d;
    d.longitude = 0.00204 * cos(5 * Mv - 2 * Mm + 0.21328) + 0.00103 * cos(2 * Mv - Mm - 2.8046) +
                  0.00091 * cos(2 * Mj - Mm - 0.64582) + 0.00078 * cos(5 * Mv - 3 * Mm + 0.17692);
    d.radius = 6.802e-06 * cos(5 * Mv - 3 * Mm - 4.53642) + 7.525e-06 * cos(2 * Mj - Mm + 0.925251) +
               5.457e-06 * cos(2 * Mv - 2 * Mm - 1.24246) + 3.569e-06 * cos(5 * Mv - Mm - 1.35699);
    return d;
}

OrbitCorrections PrintedVenus(const Sample &sample) {
    const auto [Mm, Mv, Me, Mr, Mj] = sample.M;
    OrbitCorrections d;
    d.meanLongitude = 0.00077 * sin(4.1406 + 2.6227 * sample.T) * deg;
    d.meanAnomaly = d.meanLongitude;
    d.longitude = 0.00313 * cos(2 * Me - 2 * Mv - 2.587) + 0.00198 * cos(3 * Me - 3 * Mv + 0.044768) +
                  0.00136 * cos(Me - Mv - 2.0788) + 0.00096 * cos(3 * Me - 2 * Mv - 2.3721) +
                  0.00082 * cos(Mj - Mv - 3.6318);
    d.radius = 2.2501e-05 * cos(2 * Me - 2 * Mv - 1.01592) + 1.9045e-05 * cos(3 * Me - 3 * Mv + 1.61577) +
               6.887e-06 * cos(Mj - Mv - 2.06106) + 5.172e-06 * cos(Me - Mv - 0.508065) +
               3.62e-06 * cos(5 * Me - 4 * Mv - 1.81877) + 3.283e-06 * cos(4 * Me - 4 * Mv + 1.10851) +
               3.074e-06 * cos(2 * Mj - 2 * Mv - 0.962846);
    return d;
}

OrbitCorrections PrintedMars(const Sample &sample) {
    const auto [Mm, Mv, Me, Mr, Mj] = sample.M;
    const double A = 3 * Mj - 8 * Mr + 4 * Me;
    OrbitCorrections d;
    d.meanLongitude = -(0.01133 * sin(A) + 0.00933 * cos(A)) * deg;
    d.meanAnomaly = d.meanLongitude;
    d.longitude = 0.00705 * cos(Mj - Mr - 0.85448) + 0.00607 * cos(2 * Mj - Mr - 3.2873) +
                  0.00445 * cos(2 * Mj - 2 * Mr - 3.3492) + 0.00388 * cos(Me - 2 * Mr + 0.35771) +
                  0.00238 * cos(Me - Mr + 0.61256) + 0.00204 * cos(2 * Me - 3 * Mr + 2.7688) +
                  0.00177 * cos(3 * Mr - Mv - 1.0053) + 0.00136 * cos(2 * Me - 4 * Mr + 2.6894) +
                  0.00104 * cos(Mj + 0.30749);
    d.radius = 5.3227e-05 * cos(Mj - Mr + 0.717864) + 5.0989e-05 * cos(2 * Mj - 2 * Mr - 1.77997) +
               3.8278e-05 * cos(2 * Mj - Mr - 1.71617) + 1.5996e-05 * cos(Me - Mr - 0.969618) +
               1.4764e-05 * cos(2 * Me - 3 * Mr + 1.19768) + 8.966e-06 * cos(Mj - 2 * Mr + 0.761225) +
               7.914e-06 * cos(3 * Mj - 2 * Mr - 2.43887) + 7.004e-06 * cos(2 * Mj - 3 * Mr - 1.79573) +
               6.62e-06 * cos(Me - 2 * Mr + 1.97575) + 4.93e-06 * cos(3 * Mj - 3 * Mr - 1.33069) +
               4.693e-06 * cos(3 * Me - 5 * Mr + 3.32665) + 4.571e-06 * cos(2 * Me - 4 * Mr + 4.27086) +
               4.409e-06 * cos(3 * Mj - Mr - 2.02158);
    return d;
}

/// The arguments of the great inequality, radians but for nu.
struct GreatArgs {
    explicit GreatArgs(double T)
        : nu(T / 5 + 0.1), P(Reduced(4.14473 + 52.9691 * T)), Q(Reduced(4.641118 + 21.32991 * T)),
          S(Reduced(4.250177 + 7.478172 * T)), V(5 * Q - 2 * P), W(2 * P - 6 * Q + 3 * S), Z(Q - P),
          X(S - Q) {}

    static double Reduced(double x) { return x - std::floor(x / 6.283185308) * 6.283185308; }

    double nu, P, Q, S, V, W, Z, X;
};

double JupiterA(const GreatArgs &args) {
    const auto [nu, P, Q, S, V, W, Z, X] = args;
    return (0.003228 - 0.064436 * nu + 0.002075 * nu * nu) * cos(V) +
           (0.331364 - 0.010281 * nu - 0.004692 * nu * nu) * sin(V) +
           (-0.003083 - 0.000275 * nu + 0.000489 * nu * nu) * sin(2 * V) + 0.002472 * sin(W) +
           0.013619 * sin(Z) + 0.018472 * sin(2 * Z) + 0.006717 * sin(3 * Z) + 0.002775 * sin(4 * Z) +
           0.006417 * sin(2 * Z) * sin(Q) + (0.007275 - 0.001253 * nu) * sin(Z) * sin(Q) +
           0.002439 * sin(3 * Z) * sin(Q) + (-0.035681 - 0.001208 * nu) * sin(Z) * cos(Q) -
           0.003767 * cos(2 * Z) * sin(Q) + (-0.033839 - 0.001125 * nu) * cos(Z) * sin(Q) -
           0.004261 * sin(2 * Z) * cos(Q) + (-0.006333 + 0.001161 * nu) * cos(Z) * cos(Q) +
           0.002178 * cos(Q) - 0.006675 * cos(2 * Z) * cos(Q) - 0.002664 * cos(3 * Z) * cos(Q) -
           0.002572 * sin(Z) * sin(2 * Q) - 0.003567 * sin(2 * Z) * sin(2 * Q) +
           0.002094 * cos(Z) * cos(2 * Q) + 0.003342 * cos(2 * Z) * cos(2 * Q);
}

double JupiterB(const GreatArgs &args) {
    const auto [nu, P, Q, S, V, W, Z, X] = args;
    return (3606 + 130 * nu - 43 * nu * nu) * sin(V) + (1289 - 580 * nu) * cos(V) - 6764 * sin(Z) * sin(Q) -
           1110 * sin(2 * Z) * sin(Q) - 224 * sin(3 * Z) * sin(Q) - 204 * sin(Q) +
           (1284 + 116 * nu) * cos(Z) * sin(Q) + 188 * cos(2 * Z) * sin(Q) +
           (1460 + 130 * nu) * sin(Z) * cos(Q) + 224 * sin(2 * Z) * cos(Q) - 817 * cos(Q) +
           6074 * cos(Z) * cos(Q) + 992 * cos(2 * Z) * cos(Q) + 508 * cos(3 * Z) * cos(Q) +
           230 * cos(4 * Z) * cos(Q) + 108 * cos(5 * Z) * cos(Q) + (-956 - 73 * nu) * sin(Z) * sin(2 * Q) +
           448 * sin(2 * Z) * sin(2 * Q) + 137 * sin(3 * Z) * sin(2 * Q) +
           (-997 + 108 * nu) * cos(Z) * sin(2 * Q) + 480 * cos(2 * Z) * sin(2 * Q) +
           148 * cos(3 * Z) * sin(2 * Q) + (-956 + 99 * nu) * sin(Z) * cos(2 * Q) +
           490 * sin(2 * Z) * cos(2 * Q) + 158 * sin(3 * Z) * cos(2 * Q) + 179 * cos(2 * Q) +
           (1024 + 75 * nu) * cos(Z) * cos(2 * Q) - 437 * cos(2 * Z) * cos(2 * Q) -
           132 * cos(3 * Z) * cos(2 * Q);
}

double JupiterC(const GreatArgs &args) {
    const auto [nu, P, Q, S, V, W, Z, X] = args;
    return (0.007192 - 0.003147 * nu) * sin(V) - 0.004344 * sin(Q) +
           (-0.020428 - 0.000675 * nu + 0.000197 * nu * nu) * cos(V) + 0.034036 * cos(Z) * sin(Q) +
           (0.007269 + 0.000672 * nu) * sin(Z) * sin(Q) + 0.005614 * cos(2 * Z) * sin(Q) +
           0.002964 * cos(3 * Z) * sin(Q) + 0.037761 * sin(Z) * cos(Q) + 0.006158 * sin(2 * Z) * cos(Q) -
           0.006603 * cos(Z) * cos(Q) - 0.005356 * sin(Z) * sin(2 * Q) + 0.002722 * sin(2 * Z) * sin(2 * Q) +
           0.004483 * cos(Z) * sin(2 * Q) - 0.002642 * cos(2 * Z) * sin(2 * Q) +
           0.004403 * sin(Z) * cos(2 * Q) - 0.002536 * sin(2 * Z) * cos(2 * Q) +
           0.005547 * cos(Z) * cos(2 * Q) - 0.002689 * cos(2 * Z) * cos(2 * Q);
}

double JupiterD(const GreatArgs &args) {
    const auto [nu, P, Q, S, V, W, Z, X] = args;
    return 205 * cos(Z) - 263 * cos(V) + 693 * cos(2 * Z) + 312 * cos(3 * Z) + 147 * cos(4 * Z) +
           299 * sin(Z) * sin(Q) + 181 * cos(2 * Z) * sin(Q) + 204 * sin(2 * Z) * cos(Q) +
           111 * sin(3 * Z) * cos(Q) - 337 * cos(Z) * cos(Q) - 111 * cos(2 * Z) * cos(Q);
}

double SaturnA(const GreatArgs &args) {
    const auto [nu, P, Q, S, V, W, Z, X] = args;
    return 0.007581 * sin(2 * V) - 0.007986 * sin(W) - 0.148811 * sin(Z) - 0.040786 * sin(2 * Z) +
           (-0.814181 + 0.01815 * nu - 0.016714 * nu * nu) * sin(V) +
           (-0.010497 + 0.160906 * nu - 0.0041 * nu * nu) * cos(V) - 0.015208 * sin(3 * Z) -
           0.006339 * sin(4 * Z) - 0.006244 * sin(Q) - 0.0165 * sin(2 * Z) * sin(Q) +
           (0.008931 + 0.002728 * nu) * sin(Z) * sin(Q) - 0.005775 * sin(3 * Z) * sin(Q) +
           (0.081344 + 0.003206 * nu) * cos(Z) * sin(Q) + 0.015019 * cos(2 * Z) * sin(Q) +
           (0.085581 + 0.002494 * nu) * sin(Z) * cos(Q) + 0.014394 * cos(2 * Z) * cos(Q) +
           (0.025328 - 0.003117 * nu) * cos(Z) * cos(Q) + 0.006319 * cos(3 * Z) * cos(Q) +
           0.006369 * sin(Z) * sin(2 * Q) + 0.009156 * sin(2 * Z) * sin(2 * Q) +
           0.007525 * sin(3 * X) * sin(2 * Q) - 0.005236 * cos(Z) * cos(2 * Q) -
           0.007736 * cos(2 * Z) * cos(2 * Q) - 0.007528 * cos(3 * X) * cos(2 * Q);
}

double SaturnB(const GreatArgs &args) {
    const auto [nu, P, Q, S, V, W, Z, X] = args;
    return -12696 * sin(Z) * cos(Q) - 4200 * sin(2 * Z) * cos(Q) - 1503 * sin(3 * Z) * cos(Q) -
           619 * sin(4 * Z) * cos(Q) - 268 * sin(5 * Z) * cos(Q) + (-282 - 1306 * nu) * cos(Z) * cos(Q) +
           (-86 + 230 * nu) * cos(2 * Z) * cos(Q) + 461 * sin(2 * X) * cos(Q) - 350 * sin(2 * Q) +
           (2211 - 286 * nu) * sin(Z) * sin(2 * Q) - 2208 * sin(2 * Z) * sin(2 * Q) -
           568 * sin(3 * Z) * sin(2 * Q) - 346 * sin(4 * Z) * sin(2 * Q) +
           (-2780 - 222 * nu) * cos(Z) * sin(2 * Q) + (2022 + 263 * nu) * cos(2 * Z) * sin(2 * Q) +
           248 * cos(3 * Z) * sin(2 * Q) + 242 * sin(3 * X) * sin(2 * Q) + 467 * cos(3 * X) * sin(2 * Q) -
           490 * cos(2 * Q) + (-2842 - 279 * nu) * sin(Z) * cos(2 * Q) +
           (13381 + 1226 * nu - 253 * nu * nu) * cos(V) + (-7927 + 2548 * nu + 91 * nu * nu) * sin(V) +
           (248 - 121 * nu) * sin(2 * V) + (-305 - 91 * nu) * cos(2 * V) + 412 * sin(2 * Z) + 12415 * sin(Q) +
           (390 - 617 * nu) * sin(Z) * sin(Q) + (165 - 204 * nu) * sin(2 * Z) * sin(Q) +
           26599 * cos(Z) * sin(Q) - 4687 * cos(2 * Z) * sin(Q) - 1870 * cos(3 * Z) * sin(Q) -
           821 * cos(4 * Z) * sin(Q) - 377 * cos(5 * Z) * sin(Q) + 497 * cos(2 * X) * sin(Q) +
           (163 - 611 * nu) * cos(Q) + (128 + 226 * nu) * sin(2 * Z) * cos(2 * Q) +
           224 * sin(3 * Z) * cos(2 * Q) + (-1594 + 282 * nu) * cos(Z) * cos(2 * Q) +
           (2162 - 207 * nu) * cos(2 * Z) * cos(2 * Q) + 561 * cos(3 * Z) * cos(2 * Q) +
           343 * cos(4 * Z) * cos(2 * Q) + 469 * sin(3 * X) * cos(2 * Q) - 242 * cos(3 * X) * cos(2 * Q) -
           205 * sin(Z) * sin(3 * Q) + 262 * sin(3 * Z) * sin(3 * Q) + 208 * cos(Z) * cos(3 * Q) -
           271 * cos(3 * Z) * cos(3 * Q) - 382 * cos(3 * Z) * sin(4 * Q) - 376 * sin(3 * Z) * cos(4 * Q);
}

double SaturnC(const GreatArgs &args) {
    const auto [nu, P, Q, S, V, W, Z, X] = args;
    return (0.077108 + 0.007186 * nu - 0.001533 * nu * nu) * sin(V) - 0.007075 * sin(Z) +
           (0.045803 - 0.014766 * nu - 0.000536 * nu * nu) * cos(V) - 0.072586 * cos(Q) -
           0.075825 * sin(Z) * sin(Q) - 0.024839 * sin(2 * Z) * sin(Q) - 0.008631 * sin(3 * Z) * sin(Q) -
           0.150383 * cos(Z) * cos(Q) + 0.026897 * cos(2 * Z) * cos(Q) + 0.010053 * cos(3 * Z) * cos(Q) +
           (-0.013597 - 0.001719 * nu) * sin(Z) * sin(2 * Q) + 0.011981 * sin(2 * Z) * cos(2 * Q) +
           (-0.007742 + 0.001517 * nu) * cos(Z) * sin(2 * Q) +
           (0.000522 - 0.003003 * nu) * cos(2 * Z) * cos(2 * Q) +
           (-0.013667 + 0.001239 * nu) * sin(Z) * cos(2 * Q) +
           (0.014861 + 0.001136 * nu) * cos(Z) * cos(2 * Q);
}

double SaturnD(const GreatArgs &args) {
    const auto [nu, P, Q, S, V, W, Z, X] = args;
    return 688 * sin(2 * Z) * sin(Q) + 495 * cos(2 * Z) * sin(2 * Q) + 250 * cos(3 * Z) * sin(2 * Q) -
           393 * sin(3 * Z) * sin(Q) - 856 * sin(Z) * cos(2 * Q) - 228 * sin(4 * Z) * sin(Q) +
           441 * sin(2 * Z) * cos(2 * Q) + 2138 * cos(Z) * sin(Q) + 296 * cos(2 * Z) * cos(2 * Q) -
           999 * cos(2 * Z) * sin(Q) + 211 * cos(3 * Z) * cos(2 * Q) - 642 * cos(3 * Z) * sin(Q) -
           427 * sin(Z) * sin(3 * Q) - 325 * cos(4 * Z) * sin(Q) + 398 * sin(3 * Z) * sin(3 * Q) -
           890 * cos(Q) + 344 * cos(Z) * cos(3 * Q) + 2206 * sin(Z) * cos(Q) - 427 * cos(3 * Z) * cos(3 * Q) +
           572 * sin(V) - 1590 * sin(2 * Z) * cos(Q) + 2933 * cos(V) - 647 * sin(3 * Z) * cos(Q) +
           33629 * cos(Z) - 344 * sin(4 * Z) * cos(Q) - 3081 * cos(2 * Z) + 2885 * cos(Z) * cos(Q) -
           1423 * cos(3 * Z) + (2172 + 102 * nu) * cos(2 * Z) * cos(Q) - 671 * cos(4 * Z) +
           296 * cos(3 * Z) * cos(Q) - 320 * cos(5 * Z) - 267 * sin(2 * Z) * sin(2 * Q) + 1098 * sin(Q) -
           778 * cos(Z) * sin(2 * Q) - 2812 * sin(Z) * sin(Q);
}

double SaturnH(const GreatArgs &args) {
    const auto [nu, P, Q, S, V, W, Z, X] = args;
    return 0.000747 * cos(Z) * sin(Q) + 0.001069 * cos(Z) * cos(Q) + 0.002108 * sin(2 * Z) * sin(2 * Q) +
           0.001261 * cos(2 * Z) * sin(2 * Q) + 0.001236 * sin(2 * Z) * cos(2 * Q) -
           0.002075 * cos(2 * Z) * cos(2 * Q);
}

OrbitCorrections GreatCorrections(double A, double B, double C, double D, double H, double e) {
    OrbitCorrections d;
    d.meanLongitude = A * deg;
    d.eccentricity = B * 1e-07;
    d.meanAnomaly = d.meanLongitude - C * deg / e;
    d.semiMajorAxis = D * 1e-06;
    d.latitude = H * deg;
    return d;
}

OrbitCorrections PrintedJupiter(const Sample &sample) {
    const GreatArgs args(sample.T);
    return GreatCorrections(JupiterA(args), JupiterB(args), JupiterC(args), JupiterD(args), 0, sample.e);
}

OrbitCorrections PrintedSaturn(const Sample &sample) {
    const GreatArgs args(sample.T);
    return GreatCorrections(SaturnA(args), SaturnB(args), SaturnC(args), SaturnD(args), SaturnH(args),
                            sample.e);
}

struct Routine {
    const char *planet;
    OrbitCorrections (*program)(const Sample &);
    OrbitCorrections (*printed)(const Sample &);
};

constexpr std::array<Routine, 5> routines{{
    {"Mercury", [](const Sample &s) { return FnMercuryTerms(s.M); }, PrintedMercury},
    {"Venus", [](const Sample &s) { return FnVenusTerms(s.T, s.M); }, PrintedVenus},
    {"Mars", [](const Sample &s) { return FnMarsTerms(s.M); }, PrintedMars},
    {"Jupiter", [](const Sample &s) { return FnJupiterTerms(s.T, s.e); }, PrintedJupiter},
    {"Saturn", [](const Sample &s) { return FnSaturnTerms(s.T, s.e); }, PrintedSaturn},
}};

struct Field {
    const char *name;
    double OrbitCorrections::*value;
};

constexpr std::array<Field, 7> fields{{
    {"longitude", &OrbitCorrections::longitude},
    {"radius", &OrbitCorrections::radius},
    {"meanLongitude", &OrbitCorrections::meanLongitude},
    {"meanAnomaly", &OrbitCorrections::meanAnomaly},
    {"eccentricity", &OrbitCorrections::eccentricity},
    {"semiMajorAxis", &OrbitCorrections::semiMajorAxis},
    {"latitude", &OrbitCorrections::latitude},
}};

std::vector<Sample> Samples() {
    std::mt19937_64 random(19000);
    std::uniform_real_distribution<double> century(-1, 11);
    std::uniform_real_distribution<double> eccentricity(0.04, 0.06);
    std::uniform_real_distribution<double> anomaly(-13, 13);
    std::vector<Sample> samples(50);
    for (Sample &s : samples) {
        s.T = century(random);
        s.e = eccentricity(random);
        for (double *M : {&s.M.mercury, &s.M.venus, &s.M.earth, &s.M.mars, &s.M.jupiter}) {
            *M = anomaly(random);
        }
    }
    return samples;
}

TEST(PlanetTerms, AgreeWithThePrintedSeries) {
    for (const Routine &routine : routines) {
        for (const Field &field : fields) {
            std::vector<double> printed;
            double size = 0;
            for (const Sample &sample : Samples()) {
                printed.push_back(routine.printed(sample).*field.value);
                size = std::max(size, std::abs(printed.back()));
            }
            // A field that the planet does not have has size 0 and must be exactly 0.
            std::size_t at = 0;
            for (const Sample &sample : Samples()) {
                EXPECT_NEAR(routine.program(sample).*field.value, printed[at++], size * 1e-12)
                    << routine.planet << ' ' << field.name << " at T = " << sample.T;
            }
        }
    }
}

} // namespace
} // namespace kelvaro
