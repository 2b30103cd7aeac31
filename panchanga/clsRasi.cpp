#include "panchanga/clsRasi.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace kelvaro {

namespace {

struct RasiRow {
    std::int16_t number;
    double end; ///< degrees, belongs to the sign
    std::string_view sanskrit;
    std::string_view english;
};

// The first sign reaches a hundredth of a degree into the second; the others end at their multiple of 30.
constexpr std::array<RasiRow, 12> rasis{{
    {1, 30.01, "Mesha", "Aries"},
    {2, 60, "Vrishaba", "Taurus"},
    {3, 90, "Mithuna", "Gemini"},
    {4, 120, "Kataka", "Cancer"},
    {5, 150, "Simha", "Leo"},
    {6, 180, "Kanya", "Virgo"},
    {7, 210, "Thula", "Libra"},
    {8, 240, "Vrishchika", "Scorpio"},
    {9, 270, "Dhanus", "Sagitarius"},
    {10, 300, "Makara", "Capricon"},
    {11, 330, "Khumba", "Aquarius"},
    {12, 360, "Meena", "Pisces"},
}};

const RasiRow *RasiAt(double position) {
    if (!(position >= 0)) {
        return nullptr;
    }
    const auto *const found =
        std::find_if(rasis.begin(), rasis.end(), [=](const RasiRow &row) { return position <= row.end; });
    return found == rasis.end() ? nullptr : found;
}

/// One sign is always taken off, so the first sign has no second half; further signs come off only
/// while more than 30 degrees are left, so an exact multiple of 30 stays 30.
std::int16_t HalfAt(double position) {
    double rest = position - 30;
    if (rest > 30) {
        rest = std::fmod(rest, 30);
        rest = rest == 0 ? 30 : rest;
    }
    return rest <= 15 ? 1 : 2;
}

} // namespace

void clsRasi::findRasi() {
    const bool sanskrit = nchkLanguage == "Sanskrit";
    if (!sanskrit && nchkLanguage != "English") {
        return;
    }
    if (const RasiRow *row = RasiAt(PlanetPosition)) {
        RasiName = sanskrit ? row->sanskrit : row->english;
        RasiNo = row->number;
    }
    RasiHalf = HalfAt(PlanetPosition);
}

} // namespace kelvaro
