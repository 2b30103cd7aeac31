#pragma once

namespace kelvaro {

// Sine, cosine, tangent and arc tangent of the program's own. Those of the C libraries differ between systems
// in the last digit; these give the same digits on every machine, correct to 0.5001 units in the last place.
// Method: a table for every 64th of a radian and short series between its entries, in pairs of doubles (T. J.
// Dekker, A Floating-Point Technique for Extending the Available Precision, 1971).
//
// Angles are radians, up to 2^24 in size; beyond that, and for what is no number, Sine, Cosine and Tangent
// raise ArithmeticError. ArcTangent lies between minus and plus a quarter of the circle and takes any number.

double Sine(double radians);
double Cosine(double radians);
double Tangent(double radians);
double ArcTangent(double tangent);

} // namespace kelvaro
