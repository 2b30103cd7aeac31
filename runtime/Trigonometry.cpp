#include "runtime/Trigonometry.h"

#include "runtime/RuntimeError.h"
#include "runtime/TrigonometryTables.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace kelvaro {

namespace {

constexpr TwoDoubles quarterCircle{0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};
constexpr double quartersOfRadian = 0x1.45f306dc9c883p-1;
/// A quarter of the circle in parts of 29 bits, whose products with up to 2^24 quarters are exact, and the
/// rest.
constexpr std::array<double, 4> quarterParts{0x1.921fb54p+0, 0x1.10b461p-30, 0x1.a626331p-58,
                                             0x1.1701b839a252p-88};
constexpr double largestAngle = 0x1p24;
/// The same in a part of 44 bits, for up to 2^9 quarters, and the rest.
constexpr TwoDoubles quarterForFew{0x1.921fb54442cp+0, 0x1.18469898cc517p-44};
constexpr double fewQuarters = 512;
/// An angle that is left over and smaller has lost digits in the short reduction.
constexpr double smallestOfFew = 0x1p-16;
constexpr double eighthOfCircle = 0x1.921fb54442d18p-1;
/// Below it an angle, its sine and its tangent are one number, and its cosine is 1.
constexpr double smallestAngle = 0x1p-27;
/// Beyond it the arc tangent is a quarter of the circle.
constexpr double largestTangent = 0x1p55;

// The operations below are exact, or lose less than a digit that the sum of both parts has left.

/// The sum of two numbers of which the first is the larger, or zero.
TwoDoubles OrderedSum(double a, double b) {
    const double high = a + b;
    return {high, b - (high - a)};
}

TwoDoubles Sum(double a, double b) {
    const double high = a + b;
    const double ofB = high - a;
    return {high, (a - (high - ofB)) + (b - ofB)};
}

/// The upper half of the digits of a number in the first part, the lower half in the second.
TwoDoubles Halves(double a) {
    constexpr double splitter = 0x1p27 + 1;
    const double scaled = splitter * a;
    const double high = scaled - (scaled - a);
    return {high, a - high};
}

TwoDoubles Product(double a, double b) {
    const double high = a * b;
    const TwoDoubles x = Halves(a);
    const TwoDoubles y = Halves(b);
    return {high, ((x.high * y.high - high) + x.high * y.low + x.low * y.high) + x.low * y.low};
}

TwoDoubles Quotient(const TwoDoubles &a, const TwoDoubles &b) {
    const double high = a.high / b.high;
    const TwoDoubles product = Product(high, b.high);
    const double rest = ((a.high - product.high) - product.low) + a.low - high * b.low;
    return OrderedSum(high, rest / b.high);
}

/// The nearest whole number, of numbers below 2^51.
double Nearest(double value) {
    constexpr double shift = 0x1.8p52;
    return (value + shift) - shift;
}

/// An angle within an eighth of the circle, and the quarters of the circle that it was turned by.
struct ReducedAngle {
    TwoDoubles radians;
    std::int32_t quarters = 0;
};

TwoDoubles LongReduction(double radians, double quarters) {
    const TwoDoubles first = Sum(radians - quarters * quarterParts[0], -(quarters * quarterParts[1]));
    const TwoDoubles second = Sum(first.high, -(quarters * quarterParts[2]));
    return OrderedSum(second.high, first.low + second.low - quarters * quarterParts[3]);
}

ReducedAngle Reduced(double radians) {
    if (std::abs(radians) <= eighthOfCircle) {
        return {{radians, 0}, 0};
    }
    if (!(std::abs(radians) <= largestAngle)) {
        throw ArithmeticError("Overflow: an angle too large for its sine");
    }
    const double quarters = Nearest(radians * quartersOfRadian);
    const auto turns = static_cast<std::int32_t>(quarters);
    const double first = radians - quarters * quarterForFew.high;
    if (std::abs(quarters) <= fewQuarters && std::abs(first) >= smallestOfFew) {
        return {OrderedSum(first, -(quarters * quarterForFew.low)), turns};
    }
    return {LongReduction(radians, quarters), turns};
}

/// The sine of an angle that is turned by so many more quarters of the circle. Sines and cosines, and angles
/// of either sign, go the same way, as a branch that nobody can foresee takes longer than all of it.
TwoDoubles TurnedSine(const ReducedAngle &angle, std::int32_t more) {
    const auto quarters = static_cast<std::uint32_t>(angle.quarters + more);
    const std::uint32_t isCosine = quarters & 1U;
    const double side = std::copysign(1.0, angle.radians.high);
    const double high = side * angle.radians.high;
    const double step = Nearest(high * trigonometrySteps);
    const TwoDoubles rest = OrderedSum(high - step / trigonometrySteps, side * angle.radians.low);
    const double square = rest.high * rest.high;
    const double sineTail = rest.high * square * (-1.0 / 6 + square * (1.0 / 120 - square * (1.0 / 5040))) -
                            0.5 * square * rest.low;
    const double cosineTail =
        square * (-0.5 + square * (1.0 / 24 + square * (-1.0 / 720 + square * (1.0 / 40320)))) -
        rest.high * rest.low;
    // The sine is that of the entry times a cosine plus its cosine times a sine; of a cosine the second part
    // is taken away and the two are exchanged.
    const SineAndCosine &entry = sinesAndCosines.at(static_cast<std::size_t>(step));
    const double turn = 1.0 - 2.0 * static_cast<double>(isCosine);
    const TwoDoubles &kept = entry.at(isCosine);
    const TwoDoubles turned{turn * entry.at(1U - isCosine).high, turn * entry.at(1U - isCosine).low};
    const TwoDoubles product = Product(turned.high, rest.high);
    const TwoDoubles sum = OrderedSum(kept.high, product.high);
    const double low = kept.high * cosineTail + turned.high * sineTail + turned.high * rest.low +
                       turned.low * rest.high + kept.low + product.low + sum.low;
    const double sign = (1.0 - static_cast<double>(quarters & 2U)) * (isCosine == 0 ? side : 1.0);
    const TwoDoubles sine = OrderedSum(sum.high, low);
    return {sign * sine.high, sign * sine.low};
}

TwoDoubles TangentOf(const ReducedAngle &angle) {
    return Quotient(TurnedSine(angle, 0), TurnedSine(angle, 1));
}

/// Of a number from 0 to 1.
TwoDoubles ArcTangentUpToOne(const TwoDoubles &tangent) {
    const double step = Nearest(tangent.high * trigonometrySteps);
    const double entry = step / trigonometrySteps;
    const TwoDoubles product = Product(entry, tangent.high);
    const TwoDoubles sum = OrderedSum(1, product.high);
    const TwoDoubles rest = Quotient(OrderedSum(tangent.high - entry, tangent.low),
                                     OrderedSum(sum.high, sum.low + product.low + entry * tangent.low));
    const double square = rest.high * rest.high;
    const double tail =
        rest.high * square * (-1.0 / 3 + square * (1.0 / 5 + square * (-1.0 / 7 + square * (1.0 / 9))));
    const TwoDoubles &angle = arcTangents.at(static_cast<std::size_t>(step));
    const TwoDoubles whole = OrderedSum(angle.high, rest.high);
    return OrderedSum(whole.high, tail + rest.low + angle.low + whole.low);
}

TwoDoubles PositiveArcTangent(double tangent) {
    if (tangent <= 1) {
        return ArcTangentUpToOne({tangent, 0});
    }
    const TwoDoubles other = ArcTangentUpToOne(Quotient({1, 0}, {tangent, 0}));
    const TwoDoubles angle = OrderedSum(quarterCircle.high, -other.high);
    return OrderedSum(angle.high, angle.low + quarterCircle.low - other.low);
}

} // namespace

double Sine(double radians) {
    return std::abs(radians) < smallestAngle ? radians : TurnedSine(Reduced(radians), 0).high;
}

double Cosine(double radians) {
    return std::abs(radians) < smallestAngle ? 1 : TurnedSine(Reduced(radians), 1).high;
}

double Tangent(double radians) {
    return std::abs(radians) < smallestAngle ? radians : TangentOf(Reduced(radians)).high;
}

double ArcTangent(double tangent) {
    const double size = std::abs(tangent);
    if (!(size >= smallestAngle)) {
        return tangent;
    }
    return std::copysign(size < largestTangent ? PositiveArcTangent(size).high : quarterCircle.high, tangent);
}

} // namespace kelvaro
