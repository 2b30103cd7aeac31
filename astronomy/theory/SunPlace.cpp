#include "astronomy/theory/SunPlace.h"

#include "astronomy/theory/AngleReduction.h"
#include "astronomy/theory/KeplerEquation.h"
#include "astronomy/theory/Nutation.h"
#include "runtime/Numbers.h"
#include "runtime/Trigonometry.h"

namespace kelvaro {

namespace {

double MeanAnomalyDegrees(double T) {
    return 358.47583 - (0.00015 + 3.3e-06 * T) * (T * T) + 360 * FractionOf(99.99736042 * T);
}

/// What Venus, Jupiter and the Moon do to the Earth's place.
struct Perturbation {
    double longitude; ///< degrees
    double distance;  ///< astronomical units
};

Perturbation PerturbationAt(double T) {
    const double A = (153.23 + 360 * FractionOf(62.55209472 * T)) * degreesToRadians;
    const double B = (216.57 + 360 * FractionOf(125.1041894 * T)) * degreesToRadians;
    const double C = (312.69 + 360 * FractionOf(91.56766028 * T)) * degreesToRadians;
    const double D = (350.74 - 0.00144 * (T * T) + 360 * FractionOf(1236.853095 * T)) * degreesToRadians;
    const double G = (231.19 + 20.2 * T) * degreesToRadians;
    const double H = (353.4 + 360 * FractionOf(183.1353208 * T)) * degreesToRadians;
    return {0.00134 * Cosine(A) + 0.00154 * Cosine(B) + 0.002 * Cosine(C) + 0.00179 * Sine(D) +
                0.00178 * Sine(G),
            5.43e-06 * Sine(A) + 1.575e-05 * Sine(B) + 1.627e-05 * Sine(C) + 3.076e-05 * Cosine(D) +
                9.27e-06 * Sine(H)};
}

} // namespace

SunPlace FnFindSun(double centuries) {
    const double T = centuries;
    const double T2 = T * T;
    const double meanLongitude = 279.69668 + 0.0003025 * T2 + 360 * FractionOf(100.0021359 * T);
    const double meanAnomaly = MeanAnomalyDegrees(T);
    const double eccentricity = 0.01675104 - 4.18e-05 * T - 1.26e-07 * T2;
    const OrbitAnomalies anomalies = FnSolveKepler(meanAnomaly * degreesToRadians, eccentricity);
    const Perturbation perturbation = PerturbationAt(T);

    SunPlace sun;
    sun.trueLongitude = NormalizeRadians(
        (meanLongitude - meanAnomaly + perturbation.longitude) * degreesToRadians + anomalies.trueAnomaly);
    sun.distance =
        1.0000002 * (1 - eccentricity * Cosine(anomalies.eccentricAnomaly)) + perturbation.distance;
    constexpr double aberration = 0.00569;
    sun.nutation = FnFindNutation(centuries);
    sun.apparentLongitude = FnNormalize360(sun.trueLongitude * radiansToDegrees + sun.nutation - aberration);
    return sun;
}

double FnFindSunMeanAnomaly(double centuries) {
    return MeanAnomalyDegrees(centuries) * degreesToRadians;
}

} // namespace kelvaro
