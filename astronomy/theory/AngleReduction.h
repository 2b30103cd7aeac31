#pragma once

namespace kelvaro {

// The literal values of the theory. They are short on purpose: full-precision values would give other
// longitudes.
inline constexpr double degreesToRadians = 0.01745329252;
inline constexpr double radiansToDegrees = 57.29577951;
inline constexpr double fullCircle = 6.283185308; ///< radians
inline constexpr double pi = 3.14159265358979;

/// Brings degrees to 0 to 360, both ends possible: exactly 360 stays 360.
/// Raises ArithmeticError for an angle too large to be one.
double FnNormalize360(double degrees);

/// Takes off whole circles, truncating: a negative angle stays negative.
double FnReduceDegrees(double degrees);

/// Brings radians to 0 to `fullCircle`.
double FnReduceRadians(double radians);

/// Adds or takes off `fullCircle` until the angle lies from 0 to `fullCircle`, both ends possible.
/// Raises ArithmeticError for an angle too large to be one.
double NormalizeRadians(double radians);

/// The arc sine in radians, by the arc tangent; an argument of exactly 1 or -1 divides by zero.
double FnArcSin(double x);

/// The arc tangent of y / x in its quadrant, 0 to 2 pi.
double FnArcTan2(double y, double x);

/// Degrees and minutes of arc as decimal degrees. The minutes are never negative and go to the side of the
/// degrees, whose sign alone tells it: at 0 degrees they count as positive.
double SignedDegrees(double degrees, double minutes);

} // namespace kelvaro
