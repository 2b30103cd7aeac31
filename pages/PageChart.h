#pragma once

#include "drawing/ChartDrawing.h"
#include "horoscope/record/ChartForm.h"
#include "horoscope/record/Names.h"
#include "pages/PageSetter.h"

namespace kelvaro {

/// How a chart is set. Lengths are in points.
struct ChartSetting {
    double side = 0; ///< of the square
    double text = 11.5;
    double title = 16;
    double headingHeight = 26; ///< above a drawing that has no open centre
    double number = 9;         ///< of the signs at the houses
    double linePitch = ChartFont::usualPitch;
    double lineWidth = 0.6;
};

/// What charts of the pages say, and the signs that their cells belong to.
struct PageChart {
    ChartContent content;
    std::array<std::string, 12> cellNames; ///< for a note below the chart
};

/// The names of the cells of a chart: those of the signs, in the North drawing with their numbers, which are
/// those of the houses from the first one on.
std::array<std::string, 12> CellNamesOf(ChartStyle style, const Names &names, int firstSign);

/// The room that a chart takes up with its heading, without a note.
double HeightOf(ChartStyle style, const ChartSetting &setting);

/// Adds a chart in the middle of a column that is as wide as the setting's square and so many points from the
/// left of the area. What its cells have no room for stands in a note below it, in letters that are no
/// smaller than all others; where the note needs more room than there is, the chart is a little smaller.
void AddChart(const PageChart &chart, ChartSetting setting, double noteRoom, double indent,
              PageSetter &setter);

} // namespace kelvaro
