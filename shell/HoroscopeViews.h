#pragma once

#include "shell/HoroscopeView.h"

#include <array>

namespace kelvaro {

/// A node of the horoscope tree and the view that it opens.
struct HoroscopeViewRow {
    const char *text;     ///< of the node
    const char *key;      ///< of the node
    const char *viewName; ///< as noted in `Horoscope::CurrentView`
    const char *form;     ///< object name of the view
    HoroscopeView *(*make)();
};

HoroscopeView *MakeRasiView();
HoroscopeView *MakeNavamsaView();

/// The views in the order of the tree.
inline constexpr std::array<HoroscopeViewRow, 2> horoscopeViews{{
    {"Rasi", "Rasi", "Rasi", "frm_rasi", MakeRasiView},
    {"Navamsa", "Navamsa", "Navamsa", "frm_Navamsa", MakeNavamsaView},
}};

} // namespace kelvaro
