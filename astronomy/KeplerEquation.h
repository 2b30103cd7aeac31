#pragma once

namespace kelvaro {

/// A place on an ellipse, radians.
struct OrbitAnomalies {
    double trueAnomaly = 0; ///< not brought to the circle
    double eccentricAnomaly = 0;
};

/// Solves Kepler's equation by Newton's iteration, to 1e-06 radians. The eccentricity lies from 0 to below 1.
OrbitAnomalies FnSolveKepler(double meanAnomaly, double eccentricity);

} // namespace kelvaro
