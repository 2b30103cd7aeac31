#pragma once

namespace kelvaro {

/// Mean anomalies in radians, each less the planet's motion during the light-time of the pass.
struct MeanAnomalies {
    double mercury = 0;
    double venus = 0;
    double earth = 0;
    double mars = 0;
    double jupiter = 0;
};

/// What the planets do to one another's orbits, to be added to the mean elements.
struct OrbitCorrections {
    double longitude = 0;     ///< dL, degrees
    double radius = 0;        ///< dR, astronomical units
    double meanLongitude = 0; ///< dl, radians
    double meanAnomaly = 0;   ///< dM, radians
    double eccentricity = 0;  ///< dE
    double semiMajorAxis = 0; ///< dA, astronomical units
    double latitude = 0;      ///< dB, radians
};

// Perturbations after Le Verrier's theories of the planets, in the shortened form that counts from 1900
// January 0.5. `centuries` is the time from that epoch in Julian centuries.

OrbitCorrections FnMercuryTerms(const MeanAnomalies &anomalies);
OrbitCorrections FnVenusTerms(double centuries, const MeanAnomalies &anomalies);
OrbitCorrections FnMarsTerms(const MeanAnomalies &anomalies);

/// The great inequality and its companions. `eccentricity` is that of the planet's mean elements at the time.
OrbitCorrections FnJupiterTerms(double centuries, double eccentricity);
OrbitCorrections FnSaturnTerms(double centuries, double eccentricity);

} // namespace kelvaro
