#include "pages/VargaCharts.h"

#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "pages/PageChart.h"
#include "pages/PageType.h"
#include "presentation/ChartCells.h"
#include "presentation/ChartStyles.h"
#include "runtime/Texts.h"

#include <algorithm>
#include <optional>

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

using Row = std::vector<std::string>;

ChartStyle PreferredStyle(const HoroscopeState &state) {
    const auto *const found = std::ranges::find_if(chartStyles, [&state](const StyleOfChart &style) {
        return SameIgnoringCase(style.word, state.preferences.ChartStyle);
    });
    return found == chartStyles.end() ? ChartStyle::Unknown : found->style;
}

/// The sign, 1 to 12, of a short name; 0 where it is none.
std::int16_t SignNamed(const Names &names, const std::string &shortName) {
    const auto found = std::ranges::find(names.RasiShortNames, shortName);
    return found == names.RasiShortNames.end()
               ? std::int16_t{0}
               : static_cast<std::int16_t>(found - names.RasiShortNames.begin() + 1);
}

/// The chart of a row: the name of the varga, and the sign of each body from the Lagna on.
PageChart ChartOf(const Row &row, ChartStyle style, const Names &names) {
    const std::int16_t lagna = row.size() > 1 ? SignNamed(names, row[1]) : std::int16_t{0};
    const bool isByHouse = style == ChartStyle::North;
    PageChart chart;
    chart.content.style = style;
    chart.cellNames = CellNamesOf(style, names, lagna);
    for (std::size_t body = 0; body + 1 < row.size(); ++body) {
        const std::int16_t sign = SignNamed(names, row[body + 1]);
        if (sign == 0 || (isByHouse && lagna == 0)) {
            continue;
        }
        const std::int16_t cell = isByHouse ? HouseFromLagna(lagna, sign) : sign;
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

void AddTitledChart(const Row &row, ChartStyle style, const Names &names, const ChartSetting &setting,
                    double indent, PageSetter &setter) {
    const double top = setter.Top();
    PageBlock title;
    title.AddLines(OneLine(TextOf(row.front())), TitleStyle(), 0, setting.side, Qt::AlignHCenter);
    setter.AddBlock(title, indent);
    AddChart(ChartOf(row, style, names), setting, rowGap, indent, setter);
    setter.Skip(top - setter.Top());
}

} // namespace

bool HasVargaCharts(const HoroscopeState &state, const VargasForm &form) {
    return PreferredStyle(state) != ChartStyle::Unknown && !form.mshVargas.rows.empty();
}

void SetVargaCharts(const HoroscopeState &state, const VargasForm &form, PageSetter &setter) {
    const ChartStyle style = PreferredStyle(state);
    const double width =
        (setter.Area().width() - static_cast<double>(columns - 1) * columnGap) / static_cast<double>(columns);
    const double height = setter.RoomLeft() / static_cast<double>(rows);
    const ChartSetting setting = SettingOf(width, height);
    const double pitch = (setter.Area().width() - setting.side) / static_cast<double>(columns - 1);
    for (std::size_t chart = 0; chart < form.mshVargas.rows.size(); ++chart) {
        if (chart > 0 && chart % (columns * rows) == 0) {
            setter.OpenPage();
        } else if (chart > 0 && chart % columns == 0) {
            setter.Skip(height);
        }
        AddTitledChart(form.mshVargas.rows[chart], style, state.names, setting,
                       static_cast<double>(chart % columns) * pitch, setter);
    }
}

} // namespace kelvaro
