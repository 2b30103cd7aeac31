#include "analysis/Vargas.h"

#include "analysis/Lords.h"
#include "horoscope/record/Bodies.h"
#include "panchanga/Sign.h"
#include "presentation/AngleText.h"
#include "runtime/Numbers.h"
#include "runtime/Texts.h"
#include "store/database/Recordset.h"

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

void LayOutGrid(const HoroscopeState &state, TextGrid &grid) {
    if (state.preferences.Language == "Sanskrit") {
        grid.header = sanskritHeader;
    } else if (state.preferences.Language == "English") {
        grid.header = englishHeader;
    }
    grid.rows.assign(vargas.size(), std::vector<std::string>(columnBodies.size() + 1));
    for (std::size_t row = 0; row < vargas.size(); ++row) {
        grid.rows[row].front() = vargas[row].label;
    }
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

std::optional<std::int16_t> LookUpHouse(std::string_view chartName, double longitude, std::int16_t rasi,
                                        store::Recordset &recordset, store::Connection &connection) {
    const std::string degrees = NumberText(FoldToSign(longitude));
    const std::string statement = "Select Housenumber from chartsmaster where  chartname ='" +
                                  std::string(chartName) + "'" + "and  startDegree <= " + degrees +
                                  " and EndDegree >" + degrees + " and RasiHouse =" + std::to_string(rasi);
    if (recordset.IsOpen()) {
        recordset.Close();
    }
    recordset.Open(statement, connection);
    if (recordset.IsEndOfFile()) {
        return std::nullopt;
    }
    return ToInt16(recordset.Number("HouseNumber"));
}

std::string ShortNameOfRasi(const HoroscopeState &state, std::int16_t rasi) {
    return RasiShortFromName(state, RasiNameOf(state, rasi));
}

} // namespace

std::string RasiShortFromName(const HoroscopeState &state, std::string_view rasiName) {
    const auto found = std::ranges::find(state.names.RasiNames, rasiName);
    if (found == state.names.RasiNames.end()) {
        return {};
    }
    return state.names.RasiShortNames.at(static_cast<std::size_t>(found - state.names.RasiNames.begin()));
}

void FillVargaRow(const HoroscopeState &state, const VargaLongitudes &longitudes, std::string_view chartName,
                  double size, VargaSource source, VargasForm &form, store::Connection &connection) {
    const auto row = RowOfChart(chartName);
    if (!row) {
        return;
    }
    store::Recordset recordset;
    for (std::size_t i = 0; i < longitudes.size(); ++i) {
        const auto rasi = source == VargaSource::Table
                              ? LookUpHouse(chartName, longitudes[i], state.positions.*columnBodies[i].rasi,
                                            recordset, connection)
                              : RasiOfLongitude(longitudes[i], size);
        if (rasi) {
            form.mshVargas.rows.at(*row).at(i + 1) = ShortNameOfRasi(state, *rasi);
        }
    }
}

void FillVargas(HoroscopeState &state, VargasForm &form, store::Connection &connection) {
    LayOutGrid(state, form.mshVargas);
    VargaLongitudes longitudes{};
    for (std::size_t i = 0; i < columnBodies.size(); ++i) {
        const BodyFields &body = columnBodies[i];
        longitudes[i] = state.positions.*body.longitude;
        state.positions.*body.rasi = RasiOfLongitude(longitudes[i], rasiSize);
        form.mshVargas.rows.front()[i + 1] = ShortNameOfRasi(state, state.positions.*body.rasi);
    }
    for (std::size_t row = 1; row < navaNavamsaRow; ++row) {
        const Varga &varga = vargas[row];
        FillVargaRow(state, longitudes, varga.chartName, varga.size, varga.source, form, connection);
    }
    for (double &longitude : longitudes) {
        longitude *= 81;
    }
    const Varga &last = vargas[navaNavamsaRow];
    FillVargaRow(state, longitudes, last.chartName, last.size, last.source, form, connection);
}

} // namespace kelvaro
