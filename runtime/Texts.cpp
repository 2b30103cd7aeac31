#include "runtime/Texts.h"

#include <algorithm>

namespace kelvaro {

namespace {

/// Whether a byte is the first, or the only one, of a character in UTF-8.
bool BeginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// How many bytes the first so many characters take.
std::size_t BytesOf(std::string_view text, std::size_t characters) {
    std::size_t bytes = 0;
    for (; bytes < text.size(); ++bytes) {
        if (BeginsCharacter(text[bytes]) && characters-- == 0) {
            break;
        }
    }
    return bytes;
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

bool SameIgnoringCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, LowerCase, LowerCase);
}

std::size_t CharactersIn(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(text, BeginsCharacter));
}

std::string OneLine(std::string_view text, std::size_t most) {
    std::string line(text.substr(0, BytesOf(text, most)));
    if (line.size() < text.size()) {
        line.resize(BytesOf(line, most - 1));
        line += "…";
    }
    std::ranges::replace_if(
        line, [](unsigned char sign) { return sign < ' ' || sign == 0x7F; }, ' ');
    return line;
}

} // namespace kelvaro
