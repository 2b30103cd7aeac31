#pragma once

#include "horoscope/entry/BirthEntry.h"
#include "horoscope/record/HoroscopeState.h"

#include <string>

namespace kelvaro {

/// A birth at Hyderabad, entered by the choices of the lists.
inline BirthFields EnteredBirth(const store::PlaceLists &lists, HoroscopeState &state,
                                const std::string &hour = "02", bool isPm = true) {
    BirthFields fields = FieldsAtLoad(MomentOf({1965, 7, 4}, {0, 15, 0}));
    fields.Txt_VC_ChartName = "Velnesh";
    fields.cbHour = hour;
    fields.Opt_PM = isPm;
    ChooseCountry(fields, {"India", 101}, lists, state);
    fields.txt_VC_City = "Hyderabad (A.P)";
    ChooseCity(fields, lists);
    return fields;
}

} // namespace kelvaro
