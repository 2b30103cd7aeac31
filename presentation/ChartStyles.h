#pragma once

#include "horoscope/record/HoroscopeForms.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro {

/// The charts that have a window of their own.
enum class Chart { Rasi, Navamsa, Bhava };

/// The twelve cells of a chart in one style.
struct CellArray {
    const char *labels;    ///< name of the label array
    std::int16_t selector; ///< what `ChartCellClear` knows it by
    std::string_view kind; ///< what `ChartCellFill` knows it by; empty where it fills none
};

/// A style of drawing, the same in all windows.
struct StyleOfChart {
    ChartStyle style;
    std::string_view word; ///< of the preference
    const char *frame;
    std::array<std::string, 12> ChartForm::*cells;
    int firstIndex;                  ///< of the label arrays
    std::array<CellArray, 3> arrays; ///< Rasi, Navamsa, Bhava

    const CellArray &Of(Chart chart) const { return arrays.at(static_cast<std::size_t>(chart)); }
};

// clang-format off
inline constexpr std::array<StyleOfChart, 3> chartStyles{{
    {ChartStyle::South, "South", "Frame_SouthBride", &ChartForm::South, 0,
     {{{"Lab_GM_GirlHouse", 1, "1"}, {"Lab_GirlNav", 2, "2"}, {"Lab_GirlNav", 9, ""}}}},
    {ChartStyle::East, "East", "Frame_EastBride", &ChartForm::East, 1,
     {{{"Lab_chartHouse_Girl_Rasi", 5, "3"}, {"Lab_ChartGHouse_Girl_Nav", 6, "5"}, {"Lab_ChartGHouse_Girl_Nav", 8, ""}}}},
    {ChartStyle::North, "North", "Frame_NorthBride", &ChartForm::North, 1,
     {{{"Lab_ChartHouseN_Girl", 3, ""}, {"Lab_ChartHouseN_GirlNav", 4, ""}, {"Lab_ChartHouseN_GirlNav", 7, ""}}}},
}};
// clang-format on

/// The windows of the charts, in the order of `Chart`.
inline constexpr std::array<ChartForm HoroscopeForms::*, 3> chartWindows{
    &HoroscopeForms::frm_rasi, &HoroscopeForms::frm_Navamsa, &HoroscopeForms::frm_BhavaChart};

/// The style of a preference word "South", "East" or "North".
constexpr ChartStyle ChartStyleOf(std::string_view word) {
    for (const StyleOfChart &style : chartStyles) {
        if (style.word == word) {
            return style.style;
        }
    }
    return ChartStyle::Unknown;
}

} // namespace kelvaro
