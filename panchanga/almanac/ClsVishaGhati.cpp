#include "panchanga/almanac/ClsVishaGhati.h"

#include <cstddef>

namespace kelvaro {

namespace {

struct SpanTexts {
    std::string_view start, end;
};

constexpr std::array<SpanTexts, 27> spanTexts{{
    {"011.06.40", "12.00.00"},  {"018.40.00", "019.33.20"}, {"033.20.00", "034.13.20"},
    {"048.53.20", "049.46.40"}, {"056.26.40", "057.20.00"}, {"071.20.00", "072.13.20"},
    {"086.40.00", "087.33.20"}, {"097.46.40", "098.40.00"}, {"113.46.40", "114.40.00"},
    {"126.40.00", "127.33.20"}, {"137.46.40", "138.40.00"}, {"150.40.00", "151.33.20"},
    {"164.40.00", "165.33.20"}, {"177.46.40", "178.40.00"}, {"189.46.40", "190.40.00"},
    {"203.06.40", "204.00.00"}, {"215.33.20", "216.26.40"}, {"229.46.40", "230.40.00"},
    {"252.26.40", "253.20.00"}, {"258.40.00", "259.33.20"}, {"271.06.40", "272.00.00"},
    {"282.13.20", "283.06.40"}, {"295.33.20", "296.26.40"}, {"310.40.00", "311.33.20"},
    {"323.33.20", "324.26.40"}, {"338.40.00", "339.33.40"}, {"353.20.00", "354.13.20"},
}};

/// The number at a place of a text, as far as its digits go.
double NumberAt(std::string_view text, std::size_t place, std::size_t length) {
    double number = 0;
    for (const char digit : text.substr(place, length)) {
        if (digit == '.') {
            break;
        }
        number = number * 10 + (digit - '0');
    }
    return number;
}

double DegreesOf(std::string_view text) {
    return NumberAt(text, 0, 3) + NumberAt(text, 4, 2) / 60 + NumberAt(text, 7, 2) / 3600;
}

} // namespace

void ClsVishaGhati::dispVishaghati() {
    for (std::size_t star = 0; star < Spans.size(); ++star) {
        const auto &[start, end] = spanTexts.at(star);
        Spans.at(star) = {start, end, DegreesOf(start), DegreesOf(end)};
    }
}

} // namespace kelvaro
