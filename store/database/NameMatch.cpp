#include "store/database/NameMatch.h"

#include <algorithm>

namespace kelvaro::store {

namespace {

char LowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

bool SameName(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, LowerCase, LowerCase);
}

} // namespace kelvaro::store
