#pragma once

#include "horoscope/record/ChartForm.h"
#include "horoscope/record/DasaForm.h"
#include "horoscope/record/TextGrid.h"
#include "horoscope/record/UserDetailsForm.h"

#include <array>
#include <cstdint>
#include <vector>

namespace kelvaro {

struct PlanetPositionsForm {
    TextGrid mshNirayana;
    TextGrid MSFlexGridSort; ///< work area of the karaka ranking, never shown
};

struct BhavaFeaturesForm {
    TextGrid msh_Bhava;
    TextGrid bhava_features;
};

struct VargasForm {
    TextGrid mshVargas;
    /// What the cells of each row name: the rasis of the bodies from Lagna to Ketu, 1 to 12, and 0 where a
    /// cell is empty.
    std::vector<std::array<std::int16_t, 10>> rasis;
};

struct AshtakavargaForm {
    TextGrid mshAshtaVarga;
};

/// What the views of the horoscope show: plain values that the driver fills, windows display and reports
/// read.
struct HoroscopeForms {
    UserDetailsForm frm_UserDetails;
    ChartForm frm_rasi;
    ChartForm frm_Navamsa;
    ChartForm frm_BhavaChart;
    BhavaFeaturesForm frm_CBhava;
    PlanetPositionsForm Frm_PP;
    VargasForm Frm_Vargas;
    AshtakavargaForm Frm_AVargas;
    DasaForm Frm_Dasa;
};

} // namespace kelvaro
