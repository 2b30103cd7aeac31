#pragma once

#include "horoscope/record/Positions.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace kelvaro {

/// The drawing of a chart. Unknown is a word of no style, and a chart that was never filled.
enum class ChartStyle { South, East, North, Unknown };

/// A body as a chart shows it.
struct CellBody {
    Body body;
    std::string name;
    std::string degrees; ///< in the sign, as "12.5"; empty where the chart shows none

    bool IsLagna() const { return body == Body::Lagna; }
};

/// The contents of one chart window: twelve cells a style, of which one style's frame is visible.
///
/// South and East cells belong to signs (Aries at index 0). North cells belong to houses counted from the
/// Lagna (house 1 at index 0). Each cell has its label text, with the bodies separated by CR LF or by blanks
/// as the label shows them, and those of the visible style have the bodies themselves.
struct ChartForm {
    std::array<std::string, 12> South;
    std::array<std::string, 12> East;
    std::array<std::string, 12> North;
    std::array<std::string, 12> Lab_NHouseNo;        ///< sign numbers of the houses, North only
    std::array<std::int16_t, 12> NorthRasiOfHouse{}; ///< the same as numbers; 0 in the other styles
    ChartStyle VisibleFrame = ChartStyle::Unknown;
    std::array<std::vector<CellBody>, 12> bodies; ///< of the visible frame's cells, in the order of the label
    bool breaksLines = false;                     ///< whether each body of a cell has a line of its own
    bool runsOn = false;                          ///< whether the bodies of a cell share a line
};

} // namespace kelvaro
