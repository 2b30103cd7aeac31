#include "analysis/BhavaForms.h"

#include "analysis/BhavaSystem.h"
#include "analysis/LongitudeCells.h"
#include "presentation/AngleText.h"
#include "presentation/ChartCells.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kelvaro {

namespace {

constexpr std::size_t houses = 12;

constexpr std::string_view limitsHeading = "House  |  Start Bhava | Mid Bhava    | Sandhi          |"
                                           " Planets                                                       ";
constexpr std::string_view middlesHeading = "House         |Longitude |   Rasi       | Rasi Lord |"
                                            "  Star             | Pada |Star Lord       |Sub  Lord    ";

struct StyleOfChart {
    ChartStyle style;
    std::int16_t selector;
    std::array<std::string, 12> ChartForm::*cells;
};

constexpr std::array<StyleOfChart, 3> styles{{
    {ChartStyle::South, 9, &ChartForm::South},
    {ChartStyle::East, 8, &ChartForm::East},
    {ChartStyle::North, 7, &ChartForm::North},
}};

void FillChart(const HoroscopeState &state, HoroscopeForms &forms) {
    const auto wanted = ChartStyleOf(state.preferences.ChartStyle);
    ChartForm &form = forms.frm_BhavaChart;
    for (const StyleOfChart &style : styles) {
        if (style.style != wanted) {
            continue;
        }
        ChartCellClear(forms, style.selector);
        form.VisibleFrame = style.style;
        for (std::size_t k = 0; k < houses; ++k) {
            const std::int16_t rasi = state.houses.BhavaRasi.at(k);
            const bool isByHouse = style.style == ChartStyle::North;
            const std::size_t cell = isByHouse ? k : static_cast<std::size_t>(rasi - 1);
            (form.*style.cells).at(cell) += state.houses.BhavaPlanets.at(k);
            if (isByHouse) {
                form.Lab_NHouseNo.at(k) = std::to_string(rasi);
            }
        }
    }
}

void FillLimits(const HoroscopeState &state, TextGrid &grid) {
    grid = {};
    grid.header = limitsHeading;
    for (std::size_t k = 0; k < houses; ++k) {
        grid.rows.push_back({std::to_string(k + 1), DegreeMinuteSecondText(state.houses.BhavaStart.at(k)),
                             DegreeMinuteSecondText(state.houses.BhavaMid.at(k)),
                             DegreeMinuteSecondText(state.houses.BhavaSandhi.at(k)),
                             state.houses.BhavaPlanets.at(k)});
    }
}

void FillMiddles(const HoroscopeState &state, TextGrid &grid, clsStar &star) {
    grid = {};
    grid.header = middlesHeading;
    for (std::size_t k = 0; k < houses; ++k) {
        const double middle = state.houses.BhavaMid.at(k);
        std::vector<std::string> row = LongitudeCells(state, star, middle);
        row.insert(row.begin(), {std::to_string(k + 1), DegreeMinuteSecondText(middle)});
        grid.rows.push_back(std::move(row));
    }
}

} // namespace

void FillBhava(HoroscopeState &state, HoroscopeForms &forms, clsStar &star) {
    FindBhavas(state);
    FillChart(state, forms);
    FillLimits(state, forms.frm_CBhava.msh_Bhava);
    FillMiddles(state, forms.frm_CBhava.bhava_features, star);
}

} // namespace kelvaro
