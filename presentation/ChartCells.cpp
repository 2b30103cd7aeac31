#include "presentation/ChartCells.h"

#include "panchanga/Sign.h"
#include "presentation/AngleText.h"
#include "presentation/ChartStyles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace kelvaro {

namespace {

constexpr std::string_view gap = "  ";

/// How a kind writes its bodies. One cell array shows degrees, and one runs its bodies on along the line.
struct KindOfCell {
    std::string_view kind;
    bool showsDegrees;
    bool breaksLines;
};

constexpr std::array<KindOfCell, 4> kindsOfCell{{
    {"1", true, true},
    {"2", false, true},
    {"3", false, false},
    {"5", false, true},
}};

void AppendToLabel(const KindOfCell &kind, const CellBody &body, std::string &label) {
    if (!label.empty() && !kind.breaksLines) {
        label.append(gap).append(body.name);
        return;
    }
    label.append(label.empty() ? "" : "\r\n").append(body.name).append(gap).append(body.degrees);
}

/// The houses of Sun to Maandi, counted from the Lagna.
std::array<std::int16_t, 11> NorthHouseOfBody(const Positions &positions) {
    std::array<std::int16_t, 11> houses{};
    std::transform(bodyFields.begin() + 1, bodyFields.end(), houses.begin(), [&](const BodyFields &fields) {
        return HouseFromLagna(positions.LagnaRasi, positions.*fields.rasi);
    });
    return houses;
}

void NumberHouses(Sign first, ChartForm &form) {
    for (std::size_t house = 0; house < form.NorthRasiOfHouse.size(); ++house) {
        const std::int16_t rasi = first.Plus(static_cast<int>(house)).Number();
        form.NorthRasiOfHouse.at(house) = rasi;
        form.Lab_NHouseNo.at(house) = std::to_string(rasi);
    }
}

void AppendToHouse(std::size_t house, Body body, const std::string &name, ChartForm &form) {
    form.North.at(house).append(name).append(gap);
    form.bodies.at(house).push_back({body, name, {}});
}

void FillByHouses(const Positions &positions, const Names &names, ChartForm &form) {
    NumberHouses(Sign(positions.LagnaRasi), form);
    // House 1 opens with the Lagna, which alone has its long text.
    AppendToHouse(0, Body::Lagna, LongNameOf(names, Body::Lagna), form);
    const std::array<std::int16_t, 11> houses = NorthHouseOfBody(positions);
    for (std::size_t i = 0; i < houses.size(); ++i) {
        const Body body = bodyFields.at(i + 1).body;
        AppendToHouse(Sign(houses.at(i)).Index(), body, ShortNameOf(names, body), form);
    }
}

void FillBySigns(std::string_view kind, const Positions &positions, const Names &names,
                 HoroscopeForms &forms) {
    for (const BodyFields &fields : bodyFields) {
        ChartCellFill(forms, kind, fields.body, ShortNameOf(names, fields.body), positions.*fields.rasi,
                      positions.*fields.longitude);
    }
}

const StyleOfChart *FindStyle(ChartStyle style) {
    const auto *const found = std::ranges::find(chartStyles, style, &StyleOfChart::style);
    return found == chartStyles.end() ? nullptr : found;
}

ChartForm &WindowOf(Chart chart, HoroscopeForms &forms) {
    return forms.*chartWindows.at(static_cast<std::size_t>(chart));
}

void FillChart(Chart chart, const Positions &positions, const Names &names, ChartStyle wanted,
               HoroscopeForms &forms) {
    const StyleOfChart *style = FindStyle(wanted);
    if (style == nullptr) {
        return;
    }
    ChartCellClear(forms, style->Of(chart).selector);
    ChartForm &form = WindowOf(chart, forms);
    form.VisibleFrame = wanted;
    if (wanted == ChartStyle::North) {
        FillByHouses(positions, names, form);
    } else {
        FillBySigns(style->Of(chart).kind, positions, names, forms);
    }
}

} // namespace

void ChartCellClear(HoroscopeForms &forms, std::int16_t selector) {
    for (const StyleOfChart &style : chartStyles) {
        for (std::size_t chart = 0; chart < chartWindows.size(); ++chart) {
            if (style.arrays.at(chart).selector == selector) {
                ChartForm &form = forms.*chartWindows.at(chart);
                (form.*style.cells).fill("");
                form.bodies.fill({});
                form.breaksLines = false;
                form.runsOn = false;
            }
        }
    }
}

void ChartCellFill(HoroscopeForms &forms, std::string_view kind, Body body, std::string_view text,
                   std::int16_t signNo, double position) {
    const auto *const rule = std::ranges::find(kindsOfCell, kind, &KindOfCell::kind);
    if (rule == kindsOfCell.end()) {
        return;
    }
    for (const StyleOfChart &style : chartStyles) {
        for (std::size_t chart = 0; chart < chartWindows.size(); ++chart) {
            if (style.arrays.at(chart).kind != kind) {
                continue;
            }
            ChartForm &form = forms.*chartWindows.at(chart);
            const std::size_t cell = Sign(signNo).Index();
            const CellBody shown{body, std::string(text),
                                 rule->showsDegrees ? DegreeMinuteText(FoldToSign(position)) : ""};
            AppendToLabel(*rule, shown, (form.*style.cells).at(cell));
            form.bodies.at(cell).push_back(shown);
            form.breaksLines = rule->breaksLines;
            form.runsOn = !rule->breaksLines;
        }
    }
}

std::int16_t HouseFromLagna(std::int16_t lagnaSign, std::int16_t bodySign) {
    const int house = 13 - lagnaSign + bodySign;
    return static_cast<std::int16_t>(house > 12 ? house - 12 : house);
}

void FillRasiChart(const Positions &positions, const Names &names, ChartStyle style, HoroscopeForms &forms) {
    FillChart(Chart::Rasi, positions, names, style, forms);
}

void FillNavamsaChart(const Positions &positions, const Names &names, ChartStyle style,
                      HoroscopeForms &forms) {
    FillChart(Chart::Navamsa, positions, names, style, forms);
}

void FillBhavaChart(const Houses &houses, const Names &names, ChartStyle style, HoroscopeForms &forms) {
    const StyleOfChart *row = FindStyle(style);
    if (row == nullptr) {
        return;
    }
    ChartCellClear(forms, row->Of(Chart::Bhava).selector);
    ChartForm &form = WindowOf(Chart::Bhava, forms);
    form.VisibleFrame = style;
    const bool isByHouse = style == ChartStyle::North;
    if (isByHouse) {
        NumberHouses(Sign(houses.BhavaRasi.front()), form);
    }
    for (std::size_t house = 0; house < houses.BhavaRasi.size(); ++house) {
        const std::size_t cell = isByHouse ? house : Sign(houses.BhavaRasi.at(house)).Index();
        (form.*row->cells).at(cell) += houses.BhavaPlanets.at(house);
        for (const Body body : houses.bodies.at(house)) {
            form.bodies.at(cell).push_back({body, ShortNameOf(names, body), {}});
        }
    }
}

} // namespace kelvaro
