#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro {

/// The nearest whole number; a value halfway between two goes to the even one.
double RoundHalfToEven(double value);

/// What a number has above its floor, 0 to below 1.
inline double FractionOf(double value) {
    return value - std::floor(value);
}

/// Rounds half to even. Raises OverflowError for a value outside -32768 to 32767, NaN included.
std::int16_t ToInt16(double value);

/// Rounds half to even. Raises OverflowError for a value outside -2147483648 to 2147483647, NaN included.
std::int32_t ToInt32(double value);

/// Reads a decimal number ("78", "5.5", "1.5e3", blanks around it allowed).
/// Raises ConversionError, which quotes the text, for anything else, infinities and NaN included.
double NumberFromText(std::string_view text);

/// Whether `NumberFromText` reads the text.
bool IsNumber(std::string_view text);

/// Whether a number is one from the lowest to the highest, both included. Raises ConversionError for a text
/// that is no number.
bool IsWithin(std::string_view text, double lowest, double highest);

/// A number in its default text form: up to fifteen significant digits, no trailing zeros ("5.5", "78",
/// "-0.25").
std::string NumberText(double value);

/// A number rounded to whole, half away from zero, with at least two digits ("07", "60").
std::string TwoDigitText(double value);

} // namespace kelvaro
