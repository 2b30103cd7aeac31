#include "panchanga/calendar/TithiOf.h"

namespace kelvaro {

namespace {

const clsTithi &Classified(clsTithi &tithi, double moon, double sun) {
    tithi.moonA = moon;
    tithi.sunC = sun;
    tithi.FindTithi();
    return tithi;
}

} // namespace

const std::string &TithiNameOf(clsTithi &tithi, double moon, double sun) {
    return Classified(tithi, moon, sun).Tithi;
}

std::int16_t TithiNumberOf(clsTithi &tithi, double moon, double sun) {
    return Classified(tithi, moon, sun).TithiNo;
}

const std::string &TithiSideOf(clsTithi &tithi, double moon, double sun) {
    return Classified(tithi, moon, sun).TithiPosition;
}

} // namespace kelvaro
