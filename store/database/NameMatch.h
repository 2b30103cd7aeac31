#pragma once

#include <string_view>

namespace kelvaro::store {

/// Whether two names or words of a statement are the same without regard to the case of A to Z.
bool SameName(std::string_view left, std::string_view right);

} // namespace kelvaro::store
