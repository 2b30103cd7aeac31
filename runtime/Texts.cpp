#include "runtime/Texts.h"

#include <algorithm>

namespace kelvaro {

namespace {

constexpr char Lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const auto first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool IsBlank(std::string_view text) {
    return Trimmed(text).empty();
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), Lower);
    return lower;
}

bool SameIgnoringCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, Lower, Lower);
}

bool BeginsWith(std::string_view text, std::string_view beginning) {
    return SameIgnoringCase(text.substr(0, beginning.size()), beginning);
}

} // namespace kelvaro
