#include "analysis/Vargas.h"

#include "analysis/Lords.h"
#include "panchanga/Sign.h"
#include "presentation/AngleText.h"
#include "runtime/Texts.h"

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

namespace kelvaro {

namespace {

struct Varga {
    std::string_view label;
    std::string_view chartName;
    double size; ///< degrees, the short decimals included
    VargaSource source;
};

constexpr std::array<Varga, 21> vargas{{
    {"Rasi", "", 30, VargaSource::Computed},
    {"Navamsa", "NAVAMSA", 3.33333333333333, VargaSource::Computed},
    {"Hora", "HORA", 30, VargaSource::Table},
    {"Drekkana", "DREKKANA", 30, VargaSource::Table},
    {"Chaturthamsha", "CHATURTHAMSHA", 7.084, VargaSource::Table},
    {"Panchamsha", "PANCHAMSHA", 6, VargaSource::Computed},
    {"Shashtamsha", "SHASHTAMSHA", 5, VargaSource::Computed},
    {"Sapthamsha", "SAPTHAMSHA", 4.2857, VargaSource::Computed},
    {"Ashatamsha", "ASHATAMSHA", 3.75, VargaSource::Computed},
    {"Dashamsha", "DASHAMSHA", 3, VargaSource::Table},
    {"Ekadashamsha", "EKADASHAMSHA", 2.7272, VargaSource::Table},
    {"Dwadashamsha", "DWADASHAMSHA", 2.5, VargaSource::Table},
    {"Shodashamsha", "SHODASHAMSHA", 1.875, VargaSource::Computed},
    {"Vimshamsha", "VIMSHAMSHA", 1.5, VargaSource::Computed},
    {"Chaturvimshamsha", "CHATURVIMSHAMSHA", 1.25, VargaSource::Table},
    {"Saptavimshamsha", "SAPTAVIMSHAMSHA", 1.1111, VargaSource::Computed},
    {"Trimshamsha", "TRIMSHAMSHA", 1, VargaSource::Table},
    {"Khavedamsa", "KHAVEDAMSA", 0.75, VargaSource::Table},
    {"Akshvedamsa", "AKSHVEDAMSA", 0.666666666666667, VargaSource::Table},
    {"Shastiamsa", "SHASTIAMSA", 0.5, VargaSource::Table},
    {"Nava-Navamsa", "NAVA-NAVAMSA", 360, VargaSource::Computed},
}};

constexpr std::size_t navaNavamsaRow = 20;

constexpr std::string_view sanskritHeader =
    "  Chart                  | Lag  | Sur  | Cha  | Kuj  | Bud  | Gur  | Suk  | San  | Rah  | Ket  ";
constexpr std::string_view englishHeader =
    "  Chart                  | Asc  | Sun  | Moo  | Mar  | Mer  | Jup  | Ven  | Sat  | Rah  | Ket  ";

/// The ten bodies of the grid; Gulika and Maandi have no column.
constexpr std::span<const BodyFields, 10> columnBodies{bodyFields.data(), 10};

VargasForm LaidOutForm(Language language) {
    VargasForm form;
    TextGrid &grid = form.mshVargas;
    if (language == Language::Sanskrit) {
        grid.header = sanskritHeader;
    } else if (language == Language::English) {
        grid.header = englishHeader;
    }
    grid.rows.assign(vargas.size(), std::vector<std::string>(columnBodies.size() + 1));
    for (std::size_t row = 0; row < vargas.size(); ++row) {
        grid.rows[row].front() = vargas[row].label;
    }
    form.rasis.resize(vargas.size());
    return form;
}

std::optional<std::size_t> RowOfChart(std::string_view chartName) {
    const std::string_view wanted = Trimmed(chartName);
    // The Rasi chart has no name and is not found by one.
    const auto found = std::find_if(vargas.begin() + 1, vargas.end(), [&](const Varga &varga) {
        return SameIgnoringCase(Trimmed(varga.chartName), wanted);
    });
    if (found == vargas.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - vargas.begin());
}

void FillCell(VargasForm &form, std::size_t row, std::size_t body, std::int16_t rasi, const Names &names) {
    form.mshVargas.rows.at(row).at(body + 1) = RasiShortFromName(names, RasiNameOf(names, rasi));
    form.rasis.at(row).at(body) = rasi;
}

} // namespace

std::string RasiShortFromName(const Names &names, std::string_view rasiName) {
    const auto found = std::ranges::find(names.RasiNames, rasiName);
    if (found == names.RasiNames.end()) {
        return {};
    }
    return names.RasiShortNames.at(static_cast<std::size_t>(found - names.RasiNames.begin()));
}

void FillVargaRow(const VargaPositions &positions, std::string_view chartName, double size,
                  VargaSource source, const Names &names, store::VargaTable &table, VargasForm &form) {
    const auto row = RowOfChart(chartName);
    if (!row) {
        return;
    }
    for (std::size_t i = 0; i < positions.longitudes.size(); ++i) {
        const double longitude = positions.longitudes[i];
        const auto rasi = source == VargaSource::Table
                              ? table.HouseNumber(chartName, DegreesInRasi(longitude), positions.rasis[i])
                              : RasiOfLongitude(longitude, size);
        if (rasi) {
            FillCell(form, *row, i, *rasi, names);
        }
    }
}

VargasForm VargaCharts(const Positions &positions, const Names &names, Language language,
                       store::VargaTable &table) {
    VargasForm form = LaidOutForm(language);
    VargaPositions bodies{};
    for (std::size_t i = 0; i < columnBodies.size(); ++i) {
        bodies.longitudes[i] = positions.*columnBodies[i].longitude;
        bodies.rasis[i] = RasiOfLongitude(bodies.longitudes[i], rasiSize);
        FillCell(form, 0, i, bodies.rasis[i], names);
    }
    for (std::size_t row = 1; row < navaNavamsaRow; ++row) {
        const Varga &varga = vargas[row];
        FillVargaRow(bodies, varga.chartName, varga.size, varga.source, names, table, form);
    }
    for (double &longitude : bodies.longitudes) {
        longitude *= 81;
    }
    const Varga &last = vargas[navaNavamsaRow];
    FillVargaRow(bodies, last.chartName, last.size, last.source, names, table, form);
    return form;
}

} // namespace kelvaro
