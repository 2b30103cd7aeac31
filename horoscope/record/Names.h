#pragma once

#include "horoscope/record/Positions.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kelvaro {

/// The language of names and headings.
enum class Language {
    English,
    Sanskrit,
    Unknown, ///< a word of no language: the names of the run before stay
};

/// The language of a preference word.
constexpr Language LanguageOf(std::string_view word) {
    if (word == "English") {
        return Language::English;
    }
    return word == "Sanskrit" ? Language::Sanskrit : Language::Unknown;
}

/// Name tables of the language in force. The two planet tables differ in order: address them by Body only.
struct Names {
    std::array<std::string, 12> ShortNames; ///< Lagna to Ketu, Jupiter before Venus, then Gulika, Maandi
    std::array<std::string, 10> LongNames;  ///< Lagna to Ketu, Venus before Jupiter
    std::array<std::string, 12> RasiNames;  ///< rasi 1 at index 0
    std::array<std::string, 12> RasiShortNames;
    std::string GulikaLongName = "Gulika";
    std::string MaandiLongName = "Maandi";
};

inline const std::string &ShortNameOf(const Names &names, Body body) {
    return names.ShortNames.at(static_cast<std::size_t>(body));
}

/// The place of a body in the table of long names, where Venus stands before Jupiter.
constexpr std::size_t LongNameIndex(Body body) {
    switch (body) {
    case Body::Venus:
        return 5;
    case Body::Jupiter:
        return 6;
    default:
        return static_cast<std::size_t>(body);
    }
}

inline const std::string &LongNameOf(const Names &names, Body body) {
    if (body == Body::Gulika) {
        return names.GulikaLongName;
    }
    if (body == Body::Maandi) {
        return names.MaandiLongName;
    }
    return names.LongNames.at(LongNameIndex(body));
}

} // namespace kelvaro
