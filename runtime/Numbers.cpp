#include "runtime/Numbers.h"

#include "runtime/RuntimeError.h"
#include "runtime/Texts.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <system_error>

namespace kelvaro {

namespace {

template <typename Integer> Integer ToInteger(double value, const char *kind) {
    const double rounded = RoundHalfToEven(value);
    constexpr double lowest = std::numeric_limits<Integer>::min();
    constexpr double highest = std::numeric_limits<Integer>::max();
    if (!(rounded >= lowest && rounded <= highest)) {
        throw OverflowError("Overflow: " + NumberText(value) + " does not fit " + kind);
    }
    return static_cast<Integer>(rounded);
}

} // namespace

double RoundHalfToEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) {
        return below;
    }
    if (rest > 0.5) {
        return below + 1;
    }
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t ToInt16(double value) {
    return ToInteger<std::int16_t>(value, "a 16-bit integer");
}

std::int32_t ToInt32(double value) {
    return ToInteger<std::int32_t>(value, "a 32-bit integer");
}

double NumberFromText(std::string_view text) {
    std::string_view digits = Trimmed(text);
    if (digits.size() > 1 && digits.front() == '+' && digits[1] != '-') {
        digits.remove_prefix(1);
    }
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc{} || end != digits.data() + digits.size() || !std::isfinite(value)) {
        throw ConversionError("Type mismatch: \"" + OneLine(text) + "\" is not a number");
    }
    return value;
}

bool IsNumber(std::string_view text) {
    try {
        NumberFromText(text);
        return true;
    } catch (const ConversionError &) {
        return false;
    }
}

bool IsWithin(std::string_view text, double lowest, double highest) {
    const double number = NumberFromText(text);
    return number >= lowest && number <= highest;
}

std::string NumberText(double value) {
    std::array<char, 40> buffer{};
    // Adding zero rids a negative zero of its sign.
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value + 0.0,
                                            std::chars_format::general, 15);
    if (error != std::errc{}) {
        throw ConversionError("A number has no text form");
    }
    return {buffer.data(), end};
}

std::string TwoDigitText(double value) {
    std::array<char, 340> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%02.0f", std::round(value));
    return buffer.data();
}

} // namespace kelvaro
