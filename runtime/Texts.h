#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kelvaro {

/// The text without the blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);

/// Whether nothing but blanks and tabs is in the text.
bool IsBlank(std::string_view text);

// For the words of the program and of the database's statements, in which only A to Z have a case: all other
// bytes stand as they are.

constexpr char LowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool SameIgnoringCase(std::string_view left, std::string_view right);

/// The most characters that a name, or another text that is typed into one line, may have.
inline constexpr std::size_t longestName = 255;

/// How many characters a text in UTF-8 has.
std::size_t CharactersIn(std::string_view text);

/// A text as one line for the screen or the page: signs of control are blanks, and an ellipsis is the last of
/// the characters that are shown of a longer text.
std::string OneLine(std::string_view text, std::size_t most = longestName);

} // namespace kelvaro
