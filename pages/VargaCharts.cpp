#include "pages/VargaCharts.h"

#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "pages/PageChart.h"
#include "pages/PageType.h"
#include "presentation/ChartCells.h"
#include "report/ChartPages.h"

#include <algorithm>

namespace kelvaro {

namespace {

constexpr std::size_t columns = 3;
constexpr std::size_t rows = 4; // of a page
constexpr double columnGap = 16;
constexpr double rowGap = 13; // with room for a note

/// Above each chart: the middle of a chart has no room for the long names.
TextStyle TitleStyle() {
    return {SerifFont(10, Weight::Bold), lineColour, 14};
}

using Rasis = decltype(VargasForm::rasis)::value_type;

/// The chart of the rasis of the bodies, of which the Lagna is the first.
PageChart ChartOf(const Rasis &rasis, ChartStyle style, const Names &names) {
    const std::int16_t lagna = rasis.front();
    const bool isByHouse = style == ChartStyle::North;
    PageChart chart;
    chart.content.style = style;
    chart.cellNames = CellNamesOf(style, names, lagna);
    for (std::size_t body = 0; body < rasis.size(); ++body) {
        const std::int16_t rasi = rasis[body];
        if (rasi == 0 || (isByHouse && lagna == 0)) {
            continue;
        }
        const std::int16_t cell = isByHouse ? HouseFromLagna(lagna, rasi) : rasi;
        const Body which = bodyFields.at(body).body;
        chart.content.cells.at(static_cast<std::size_t>(cell) - 1)
            .entries.push_back({OneLine(TextOf(ShortNameOf(names, which))),
                                {},
                                which == Body::Lagna ? Tone::Lagna : Tone::Name});
    }
    for (int house = 0; isByHouse && lagna > 0 && house < 12; ++house) {
        chart.content.numbers.at(static_cast<std::size_t>(house)) =
            QString::number((lagna - 1 + house) % 12 + 1);
    }
    return chart;
}

ChartSetting SettingOf(double width, double height) {
    ChartSetting setting;
    setting.text = 8.5;
    setting.number = leastType;
    setting.headingHeight = 0;
    setting.linePitch = 1.12;
    setting.lineWidth = 0.45;
    setting.side = std::min(width, height - TitleStyle().pitch - rowGap);
    return setting;
}

void AddTitledChart(const std::string &varga, const PageChart &chart, const ChartSetting &setting,
                    double indent, PageSetter &setter) {
    const double top = setter.Top();
    PageBlock title;
    title.AddLines(OneLine(TextOf(varga)), TitleStyle(), 0, setting.side, Qt::AlignHCenter);
    setter.AddBlock(title, indent);
    AddChart(chart, setting, rowGap, indent, setter);
    setter.Skip(top - setter.Top());
}

} // namespace

bool HasVargaCharts(const HoroscopeState &state, const HoroscopeForms &forms) {
    return PreferredStyleOf(state, forms.frm_rasi) != nullptr && !forms.Frm_Vargas.rasis.empty();
}

void SetVargaCharts(const HoroscopeState &state, const HoroscopeForms &forms, PageSetter &setter) {
    const ChartStyle style = PreferredStyleOf(state, forms.frm_rasi)->style;
    const double width =
        (setter.Area().width() - static_cast<double>(columns - 1) * columnGap) / static_cast<double>(columns);
    const double height = setter.RoomLeft() / static_cast<double>(rows);
    const ChartSetting setting = SettingOf(width, height);
    const double pitch = (setter.Area().width() - setting.side) / static_cast<double>(columns - 1);
    const VargasForm &form = forms.Frm_Vargas;
    for (std::size_t chart = 0; chart < form.rasis.size(); ++chart) {
        if (chart > 0 && chart % (columns * rows) == 0) {
            setter.OpenPage();
        } else if (chart > 0 && chart % columns == 0) {
            setter.Skip(height);
        }
        AddTitledChart(form.mshVargas.rows.at(chart).front(), ChartOf(form.rasis[chart], style, state.names),
                       setting, static_cast<double>(chart % columns) * pitch, setter);
    }
}

} // namespace kelvaro
