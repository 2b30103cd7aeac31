#pragma once

#include <string>
#include <string_view>

namespace kelvaro::store {

/// A text between quotes, as it is joined into a statement. Nothing is escaped: a quote inside would end the
/// text early and make the rest of it part of the statement, so it raises StoreError, in words for the user.
std::string Quoted(std::string_view text);

} // namespace kelvaro::store
