#pragma once

namespace kelvaro {

/// A place on an ellipse, radians.
struct OrbitAnomalies {
    double trueAnomaly = 0; ///< not brought to the circle
    double eccentricAnomaly = 0;
};

/// Solves Kepler's equation by Newton's iteration, to 1e-06 radians. Raises ArithmeticError for an
/// eccentricity outside 0 to below 1, where the iteration need not end.
OrbitAnomalies FnSolveKepler(double meanAnomaly, double eccentricity);

} // namespace kelvaro
