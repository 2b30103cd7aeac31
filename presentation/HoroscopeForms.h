#pragma once

#include "presentation/ChartForm.h"

namespace kelvaro {

/// What the views of the horoscope show: plain values that the driver fills, windows display and reports read.
struct HoroscopeForms {
    ChartForm frm_rasi;
    ChartForm frm_Navamsa;
};

} // namespace kelvaro
