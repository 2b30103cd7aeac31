#pragma once

#include <QColor>

namespace kelvaro {

// The colours of the house: dark brown ink on parchment.
inline constexpr QColor parchmentColour(230, 217, 189);
inline constexpr QColor lineColour(84, 52, 30);
inline constexpr QColor nameColour(43, 27, 17);
inline constexpr QColor figureColour(112, 84, 60);
inline constexpr QColor lagnaColour(150, 22, 22);

} // namespace kelvaro
