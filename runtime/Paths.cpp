#include "runtime/Paths.h"

namespace kelvaro {

std::string TextOfPath(std::filesystem::path path) {
    const std::u8string text = path.make_preferred().u8string();
    return {text.begin(), text.end()};
}

std::filesystem::path PathOfText(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

} // namespace kelvaro
