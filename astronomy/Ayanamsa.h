#pragma once

#include <array>
#include <string>
#include <string_view>

namespace kelvaro {

/// The distance of the sidereal zodiac from the tropical one, by its school.
enum class Ayanamsa {
    Lahiri, ///< Chitrapaksha
    Raman,
    KP,      ///< Krishnamurti
    Sayana,  ///< tropical: none
    Custom,  ///< from a zero year and a yearly progress
    Unknown, ///< a word of no school: the value found last stays
};

/// The choice of an ayanamsa as the preferences keep it.
///
/// A custom one has bounds, which hold wherever it comes from: beyond them its angle is no ayanamsa, and
/// would take its time to be folded into the circle.
struct AyanamsaSettings {
    std::string word;    ///< of its school
    double zeroYear = 0; ///< of a custom one
    double progress = 0; ///< of a custom one, seconds of arc a year
};

// The bounds of a custom ayanamsa, with 0 as the lower one of both.
inline constexpr double latestZeroYear = 2003;
inline constexpr double greatestProgress = 1000;

/// The school of a stored word.
constexpr Ayanamsa AyanamsaOf(std::string_view word) {
    struct Word {
        std::string_view word;
        Ayanamsa ayanamsa;
    };
    constexpr std::array<Word, 5> words{{{"Lahiri", Ayanamsa::Lahiri},
                                         {"Raman", Ayanamsa::Raman},
                                         {"KP", Ayanamsa::KP},
                                         {"Sayana", Ayanamsa::Sayana},
                                         {"Custom", Ayanamsa::Custom}}};
    for (const Word &each : words) {
        if (each.word == word) {
            return each.ayanamsa;
        }
    }
    return Ayanamsa::Unknown;
}

/// Whether the settings are those of a custom ayanamsa beyond its bounds.
constexpr bool IsBeyondBounds(const AyanamsaSettings &settings) {
    const bool isWithin = settings.zeroYear >= 0 && settings.zeroYear <= latestZeroYear &&
                          settings.progress >= 0 && settings.progress <= greatestProgress;
    return AyanamsaOf(settings.word) == Ayanamsa::Custom && !isWithin;
}

} // namespace kelvaro
