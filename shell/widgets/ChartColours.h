#pragma once

#include <QColor>
#include <QPalette>

namespace kelvaro {

// The colours of the house: dark brown ink on parchment.
inline constexpr QColor parchmentColour(230, 217, 189);
inline constexpr QColor lineColour(84, 52, 30);
inline constexpr QColor nameColour(43, 27, 17);
inline constexpr QColor figureColour(112, 84, 60);
inline constexpr QColor lagnaColour(150, 22, 22);

/// All colours of what stands on parchment. It is parchment under dark themes too, so none of its colours may
/// be left to the theme.
QPalette ParchmentPalette();

} // namespace kelvaro
