#pragma once

#include <string>

namespace kelvaro {

/// Degrees within the sign: takes 30 off while the value is at least 30. Values below 30 stay as they are.
double FoldToSign(double position);

/// "12.5" for 12 degrees 5 minutes, "-0.5" for 5 minutes below zero. Not a decimal fraction; a minute value
/// of 60 can appear, since degrees are never carried. Raises OverflowError for infinities and NaN.
std::string DegreeMinuteText(double value);

/// "12.5.9" for 12 degrees 5 minutes 9 seconds, under the same rules.
std::string DegreeMinuteSecondText(double value);

// The names of the two in the tables of planets and houses.

inline double DegreesInRasi(double longitude) {
    return FoldToSign(longitude);
}

inline std::string FormatDegrees(double angle) {
    return DegreeMinuteSecondText(angle);
}

} // namespace kelvaro
