#pragma once

#include "horoscope/entry/BirthStorage.h"

#include <string>

namespace kelvaro {

/// Saves a new chart and then writes over the first one, both marked with the number. The longer text spreads
/// the first chart over several pages of the file. `atNew` is called between the two.
template <typename AtNew>
void SaveChartPair(int number, const BirthFields &entered, store::Connection &connection,
                   SettingsStore &settings, AtNew atNew) {
    BirthFields next = entered;
    next.Txt_VC_ChartName = "Person " + std::to_string(number);
    next.txt_VC_LatMin = number;
    SaveBirth(next, connection, settings);
    atNew();
    next.txt_VC_UserId = 1;
    next.Txt_VC_ChartName = "First";
    next.txt_VC_City = next.chosen.city = std::string(static_cast<std::size_t>(number % 4) * 3000 + 1, 'x');
    SaveBirth(next, connection, settings);
}

} // namespace kelvaro
