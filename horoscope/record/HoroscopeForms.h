#pragma once

#include "horoscope/record/ChartForm.h"
#include "horoscope/record/DasaForm.h"
#include "horoscope/record/TextGrid.h"
#include "horoscope/record/UserDetailsForm.h"

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
