#pragma once

#include "drawing/ChartColours.h"
#include "drawing/HouseFonts.h"
#include "drawing/TableDrawing.h"

#include <QColor>
#include <QFont>

namespace kelvaro {

/// How lines of text are set. The pitch of lines is in points.
struct TextStyle {
    QFont font;
    QColor colour;
    double pitch;
};

// The kinds of text that the pages have.

inline TextStyle HeadingStyle() {
    return {SerifFont(15, Weight::Bold), lineColour, 20};
}
inline TextStyle NoteStyle() {
    return {SansFont(8.5), figureColour, 12};
}
inline TextStyle FooterStyle() {
    return {SansFont(8.5), figureColour, 12};
}
inline TextStyle LabelStyle() {
    return {SansFont(9), figureColour, 14.5}; // on the line of a field beside it
}
inline TextStyle FieldStyle() {
    return {SerifFont(10.5), nameColour, 13.5};
}

/// For tables of a page that has room to spare.
inline TableSetting AirySetting() {
    TableSetting setting;
    setting.rowPadding = 0.27;
    return setting;
}

inline constexpr double leastType = 8; ///< points; nothing is set smaller

// The room around the pages, in points.

inline constexpr double sideMargin = 53;
inline constexpr double topMargin = 53;
inline constexpr double bottomMargin = 71;   ///< the footer stands in it
inline constexpr double footerBaseline = 42; ///< above the edge of the paper

} // namespace kelvaro
