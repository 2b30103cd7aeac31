#pragma once

#include <array>
#include <optional>
#include <string>

namespace kelvaro {

enum class ChartStyle { South, East, North };

/// The contents of one chart window: twelve cell texts a style, of which one style's frame is visible.
///
/// South and East cells belong to signs (Aries at index 0). North cells belong to houses counted from the
/// Lagna (house 1 at index 0); `Lab_NHouseNo` has the sign number that stands at each of them. Bodies of a
/// cell are separated as the window shows them, by CR LF or by blanks.
struct ChartForm {
    std::array<std::string, 12> South;
    std::array<std::string, 12> East;
    std::array<std::string, 12> North;
    std::array<std::string, 12> Lab_NHouseNo;
    std::optional<ChartStyle> VisibleFrame; ///< none until the first fill
};

} // namespace kelvaro
