#pragma once

#include <string>
#include <string_view>

namespace kelvaro {

/// The text without the blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);

/// Whether nothing but blanks and tabs is in the text.
bool IsBlank(std::string_view text);

// Only the letters A to Z have a case: all other bytes, those of other scripts included, stand as they are.

std::string LowerCase(std::string_view text);
bool SameIgnoringCase(std::string_view left, std::string_view right);

/// Whether a text begins with another one, in any case of letters.
bool BeginsWith(std::string_view text, std::string_view beginning);

} // namespace kelvaro
