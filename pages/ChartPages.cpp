#include "pages/ChartPages.h"

#include "drawing/TextOf.h"
#include "pages/PageChart.h"
#include "pages/PageType.h"
#include "report/ChartPages.h"

#include <algorithm>
#include <optional>

namespace kelvaro {

namespace {

// In points.
constexpr double widestChart = 340;
constexpr double belowChart = 26; ///< room for a note, too

/// The chart of a window in the preferred style; nothing where it has no drawing.
std::optional<PageChart> ChartOf(const HoroscopeState &state, const ChartForm &form, const char *title) {
    const StyleOfChart *style = PreferredStyleOf(state, form);
    if (style == nullptr) {
        return std::nullopt;
    }
    ChartHeading heading = HeadingOf(state, QString::fromLatin1(title));
    if (style->style == ChartStyle::North) {
        heading = {heading.title, {}, {}, {}};
    }
    return PageChart{ContentOf(form, style->style, heading),
                     CellNamesOf(style->style, state.names, form.NorthRasiOfHouse.front())};
}

/// So large that two of them, with what is below them, fill a page.
ChartSetting SettingOf(ChartStyle style, const PageSetter &setter) {
    ChartSetting setting;
    const double heading = HeightOf(style, setting);
    setting.side = std::min(setter.Area().height() / 2 - heading - belowChart, widestChart);
    return setting;
}

void AddInTheMiddle(const std::optional<PageChart> &chart, PageSetter &setter) {
    if (!chart) {
        return;
    }
    const ChartSetting setting = SettingOf(chart->content.style, setter);
    AddChart(*chart, setting, belowChart, (setter.Area().width() - setting.side) / 2, setter);
    setter.Skip(HeightOf(chart->content.style, setting) + belowChart);
}

} // namespace

void SetChartsPage(const HoroscopeState &state, const HoroscopeForms &forms, PageSetter &setter) {
    AddInTheMiddle(ChartOf(state, forms.frm_rasi, "Rasi"), setter);
    AddInTheMiddle(ChartOf(state, forms.frm_Navamsa, "Navamsa"), setter);
}

void SetBhavaPage(const HoroscopeState &state, const HoroscopeForms &forms, PageSetter &setter) {
    AddInTheMiddle(ChartOf(state, forms.frm_BhavaChart, "Bhava"), setter);
    if (forms.frm_CBhava.bhava_features.rows.empty()) {
        return;
    }
    setter.AddTable(TextOf(BhavaTableTitle(state)).simplified(), {},
                    ContentOf(forms.frm_CBhava.bhava_features, QStringLiteral("crlllcll")), AirySetting());
}

} // namespace kelvaro
