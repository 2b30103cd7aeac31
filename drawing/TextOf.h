#pragma once

#include <QString>

#include <string_view>

namespace kelvaro {

/// A text of the program as the windows show it.
inline QString TextOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace kelvaro
