#include "shell/HoroscopeViews.h"

#include "shell/ChartView.h"

namespace kelvaro {

HoroscopeView *MakeRasiView() {
    return new ChartView({"Rasi", &HoroscopeForms::frm_rasi, "Lab_GM_GirlHouse", "Lab_chartHouse_Girl_Rasi",
                          "Lab_ChartHouseN_Girl"});
}

HoroscopeView *MakeNavamsaView() {
    return new ChartView({"Navamsa", &HoroscopeForms::frm_Navamsa, "Lab_GirlNav", "Lab_ChartGHouse_Girl_Nav",
                          "Lab_ChartHouseN_GirlNav"});
}

} // namespace kelvaro
