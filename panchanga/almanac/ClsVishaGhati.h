#pragma once

#include <array>
#include <string_view>

namespace kelvaro {

/// The visha ghati of each of the 27 stars: the stretch of the zodiac, 53 minutes and 20 seconds of arc long,
/// in which nothing is to be begun.
class ClsVishaGhati {
public:
    /// A stretch as it is written, "DDD.MM.SS", and in degrees of the zodiac.
    struct Span {
        std::string_view startText, endText;
        double start = 0;
        double end = 0;
    };

    /// The spans in the order of the stars from Aswini; without degrees before the first call.
    std::array<Span, 27> Spans{};

    /// Fills the spans. The texts are read by the places of their digits: three of degrees from the first
    /// place, two of minutes from the fifth, two of seconds from the eighth, and a point ends a number. So
    /// "12.00.00", which lacks a digit, is 12 degrees all the same. "339.33.40" stands as it is written,
    /// twenty seconds longer than the rest.
    void dispVishaghati();
};

} // namespace kelvaro
