#pragma once

#include "horoscope/record/ChartForm.h"
#include "horoscope/record/TextGrid.h"
#include "horoscope/record/UserDetailsForm.h"

#include <string>

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
};

struct AshtakavargaForm {
    TextGrid mshAshtaVarga;
};

struct DasaForm {
    TextGrid mshDasa;
    TextGrid mshBukti; ///< sections group the rows by dasa
    TextGrid mshAntra; ///< sections group the rows by dasa and bhukti
    std::string Lab_DasaBalanceV;
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
