#include "runtime/Trimmed.h"

namespace kelvaro {

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const auto first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool IsBlank(std::string_view text) {
    return Trimmed(text).empty();
}

} // namespace kelvaro
