#pragma once

#include <string>
#include <string_view>

namespace kelvaro {

// Names without regard to case, in every script that has one, by Unicode's full case folding: "Österreich" is
// "österreich" and "STRASSE" is "Straße". A byte that is no UTF-8 stands for itself.

std::string CaseFolded(std::string_view text);

/// Negative where the left text comes before the right one, 0 where they are the same, positive otherwise.
/// Texts follow each other by the code points of their folded letters.
int CompareInAnyCase(std::string_view left, std::string_view right);

/// Whether a text begins with another one, in any case of letters.
bool BeginsInAnyCase(std::string_view text, std::string_view beginning);

} // namespace kelvaro
