#include "panchanga/clsRasi.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

namespace kelvaro {
namespace {

TEST(ClsRasi, BoundsAndHalves) {
    struct Case {
        double position;
        int number, half;
        const char *name;
    };
    constexpr std::array<Case, 14> cases{{
        {0, 1, 1, "Mesha"},
        {29, 1, 1, "Mesha"},
        {30.005, 1, 1, "Mesha"},
        {30.01, 1, 1, "Mesha"},
        {30.02, 2, 1, "Vrishaba"},
        {45, 2, 1, "Vrishaba"},
        {45.5, 2, 2, "Vrishaba"},
        {60, 2, 2, "Vrishaba"},
        {60.01, 3, 1, "Mithuna"},
        {185, 7, 1, "Thula"},
        {240, 8, 2, "Vrishchika"},
        {330, 11, 2, "Khumba"},
        {330.1, 12, 1, "Meena"},
        {360, 12, 2, "Meena"},
    }};
    clsRasi rasi;
    rasi.nchkLanguage = "Sanskrit";
    for (const Case &expected : cases) {
        rasi.PlanetPosition = expected.position;
        rasi.findRasi();
        EXPECT_EQ(rasi.RasiName, expected.name) << expected.position;
        EXPECT_EQ(rasi.RasiNo, expected.number) << expected.position;
        EXPECT_EQ(rasi.RasiHalf, expected.half) << expected.position;
    }
}

TEST(ClsRasi, KeepsWhatACallDoesNotAssign) {
    clsRasi rasi;
    rasi.nchkLanguage = "English";
    rasi.PlanetPosition = 255;
    rasi.findRasi();
    rasi.PlanetPosition = 20;
    rasi.nchkLanguage = "english";
    rasi.findRasi();
    EXPECT_EQ(rasi.RasiName, "Sagitarius");

    // Outside the circle the half is found all the same.
    rasi.nchkLanguage = "English";
    for (const double outside : {-0.1, 375.5, std::numeric_limits<double>::infinity()}) {
        rasi.PlanetPosition = outside;
        rasi.findRasi();
        EXPECT_EQ(rasi.RasiName, "Sagitarius") << outside;
        EXPECT_EQ(rasi.RasiNo, 9) << outside;
        EXPECT_EQ(rasi.RasiHalf, outside < 0 ? 1 : 2) << outside;
    }
}

} // namespace
} // namespace kelvaro
