#pragma once

#include <string_view>

namespace kelvaro {

/// The text without the blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);

/// Whether nothing but blanks and tabs is in the text.
bool IsBlank(std::string_view text);

} // namespace kelvaro
