#pragma once

#include "shell/views/HoroscopeView.h"

#include <array>
#include <string_view>

namespace kelvaro {

/// A node of the horoscope tree and the view that it opens.
struct HoroscopeViewRow {
    const char *text;     ///< of the node
    const char *key;      ///< of the node
    const char *viewName; ///< as noted in `Horoscope::CurrentView`
    const char *form;     ///< object name of the view
    HoroscopeView *(*make)();
};

HoroscopeView *MakeUserDetailsView();
HoroscopeView *MakeRasiView();
HoroscopeView *MakeNavamsaView();
HoroscopeView *MakeBhavaView();
HoroscopeView *MakeBhavaFeaturesView();
HoroscopeView *MakePlanetPositionsView();
HoroscopeView *MakeVargasView();
HoroscopeView *MakeAshtakavargaView();
HoroscopeView *MakeDasaView();
HoroscopeView *MakePrintView();

/// The views in the order of the tree.
inline constexpr std::array<HoroscopeViewRow, 10> horoscopeViews{{
    {"Birth Details", "User", "Details", "frm_UserDetails", MakeUserDetailsView},
    {"Rasi", "Rasi", "Rasi", "frm_rasi", MakeRasiView},
    {"Navamsa", "Navamsa", "Navamsa", "frm_Navamsa", MakeNavamsaView},
    {"Bhava", "Bava", "Bhava", "frm_BhavaChart", MakeBhavaView},
    {"Bhava Features", "BP", "Bhava Features", "frm_CBhava", MakeBhavaFeaturesView},
    {"Planet Positions", "PP", "Planet Positions", "Frm_PP", MakePlanetPositionsView},
    {"Vargas", "Vargas", "Vargas", "Frm_Vargas", MakeVargasView},
    {"Ashta Vargas", "AshtaVargas", "AVargas", "Frm_AVargas", MakeAshtakavargaView},
    {"Dasa", "Dasa", "Dasa", "Frm_Dasa", MakeDasaView},
    {"Print", "Print", "Print", "Frm_Print", MakePrintView},
}};

/// The place of a view among the views, by the name that is noted for it; the first for an empty or unknown
/// name.
std::size_t ViewNamed(std::string_view name);

} // namespace kelvaro
