#include "runtime/CaseFolding.h"

#include "runtime/Texts.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace kelvaro {

namespace {

constexpr std::size_t mostBytes = 4; ///< of a letter in UTF-8

bool IsAscii(char letter) {
    return (static_cast<unsigned char>(letter) & 0x80U) == 0;
}

/// Appends the folded letter at the front of a text; returns how many bytes of the text it took.
std::size_t AppendFolded(std::string_view text, std::string &folded) {
    // "ΐ" folds to three letters, and none folds to more.
    constexpr std::size_t mostLetters = 4;
    const auto *bytes = reinterpret_cast<const utf8proc_uint8_t *>(text.data()); // NOLINT(*-reinterpret-cast)
    utf8proc_int32_t letter = 0;
    const auto taken = utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size()), &letter);
    std::array<utf8proc_int32_t, mostLetters> letters{};
    int unused = 0;
    const auto count = taken < 1 ? 0
                                 : utf8proc_decompose_char(letter, letters.data(), letters.size(),
                                                           UTF8PROC_CASEFOLD, &unused);
    if (count < 1 || count > static_cast<utf8proc_ssize_t>(mostLetters)) {
        folded += text.front();
        return 1;
    }
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        std::array<utf8proc_uint8_t, mostBytes> encoded{};
        const auto length = utf8proc_encode_char(letters.at(i), encoded.data());
        folded.append(encoded.begin(), encoded.begin() + length);
    }
    return static_cast<std::size_t>(taken);
}

/// The bytes of a folded text, one after the other: two names differ early, however long they are.
class FoldedBytes {
public:
    explicit FoldedBytes(std::string_view text) : text_(text) {}

    /// -1 behind the last one.
    int Next() {
        if (place_ == folded_.size()) {
            if (text_.empty()) {
                return -1;
            }
            folded_.clear();
            place_ = 0;
            text_.remove_prefix(AppendFolded(text_, folded_));
        }
        return static_cast<unsigned char>(folded_[place_++]);
    }

private:
    std::string_view text_;
    std::string folded_; ///< of one letter
    std::size_t place_ = 0;
};

bool ContinuesLetter(std::string_view text, std::size_t place) {
    return place < text.size() && (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80U;
}

/// Up to where two texts are the same byte for byte, which needs no folding.
std::size_t SharedLetters(std::string_view left, std::string_view right) {
    const auto difference = std::ranges::mismatch(left, right);
    auto place = static_cast<std::size_t>(difference.in1 - left.begin());
    const std::size_t first = place - std::min(place, mostBytes - 1);
    while (place > first && (ContinuesLetter(left, place) || ContinuesLetter(right, place))) {
        --place;
    }
    return place;
}

int CompareFolded(std::string_view left, std::string_view right) {
    const std::size_t shared = SharedLetters(left, right);
    FoldedBytes leftBytes(left.substr(shared));
    FoldedBytes rightBytes(right.substr(shared));
    for (;;) {
        const int leftByte = leftBytes.Next();
        const int rightByte = rightBytes.Next();
        if (leftByte != rightByte || leftByte < 0) {
            return leftByte - rightByte;
        }
    }
}

} // namespace

std::string CaseFolded(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        std::size_t taken = 1;
        if (IsAscii(text.front())) {
            folded += LowerCase(text.front());
        } else {
            taken = AppendFolded(text, folded);
        }
        text.remove_prefix(taken);
    }
    return folded;
}

int CompareInAnyCase(std::string_view left, std::string_view right) {
    // Most names are plain letters, which fold one by one: the library is asked from the first other one on.
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (!IsAscii(left[i]) || !IsAscii(right[i])) {
            return CompareFolded(left.substr(i), right.substr(i));
        }
        const int difference = LowerCase(left[i]) - LowerCase(right[i]);
        if (difference != 0) {
            return difference;
        }
    }
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

bool BeginsInAnyCase(std::string_view text, std::string_view beginning) {
    return CaseFolded(text).starts_with(CaseFolded(beginning));
}

} // namespace kelvaro
