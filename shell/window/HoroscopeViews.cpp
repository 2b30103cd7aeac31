#include "shell/window/HoroscopeViews.h"

#include "shell/print/PrintView.h"
#include "shell/views/ChartView.h"
#include "shell/views/DasaView.h"
#include "shell/views/GridView.h"
#include "shell/views/UserDetailsView.h"

#include <algorithm>

namespace kelvaro {

namespace {

using Forms = HoroscopeForms;

} // namespace

HoroscopeView *MakeUserDetailsView() {
    return new UserDetailsView;
}

HoroscopeView *MakeRasiView() {
    return new ChartView("Rasi", Chart::Rasi);
}

HoroscopeView *MakeNavamsaView() {
    return new ChartView("Navamsa", Chart::Navamsa);
}

HoroscopeView *MakeBhavaView() {
    return new ChartView("Bhava", Chart::Bhava);
}

HoroscopeView *MakeBhavaFeaturesView() {
    return new GridView(
        {"Bhava Features",
         {{"msh_Bhava", "Houses and Planets", "crrrl",
           [](const Forms &forms) -> const TextGrid & { return forms.frm_CBhava.msh_Bhava; }},
          {"bhava_features", "Mid Points of the Houses", "crlllcll",
           [](const Forms &forms) -> const TextGrid & { return forms.frm_CBhava.bhava_features; }}},
         ""});
}

HoroscopeView *MakePlanetPositionsView() {
    return new GridView({"Planet Positions",
                         {{"mshNirayana", "", "lrlllcllll",
                           [](const Forms &forms) -> const TextGrid & { return forms.Frm_PP.mshNirayana; }}},
                         "* Karaka: the Jaimini karakas, ranked by the degrees in the sign.\n"
                         "** Avasthas: the Sayanadi avasthas.     (R): retrograde."});
}

HoroscopeView *MakeVargasView() {
    return new GridView(
        {"Vargas",
         {{"mshVargas", "", "lcccccccccc",
           [](const Forms &forms) -> const TextGrid & { return forms.Frm_Vargas.mshVargas; }}},
         ""});
}

HoroscopeView *MakeAshtakavargaView() {
    return new GridView(
        {"Ashta Vargas",
         {{"mshAshtaVarga", "", "lccccccccccc",
           [](const Forms &forms) -> const TextGrid & { return forms.Frm_AVargas.mshAshtaVarga; }}},
         "* These columns stand beside the classical seven; only the last column counts them."});
}

HoroscopeView *MakeDasaView() {
    return new DasaView;
}

HoroscopeView *MakePrintView() {
    return new PrintView;
}

std::size_t ViewNamed(std::string_view name) {
    const auto row = std::ranges::find(horoscopeViews, name, &HoroscopeViewRow::viewName);
    return row == horoscopeViews.end() ? 0 : static_cast<std::size_t>(row - horoscopeViews.begin());
}

} // namespace kelvaro
