#include "astronomy/ClsPlanet.h"

#include "runtime/RuntimeError.h"
#include "tests/astronomy/Birth.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace kelvaro {
namespace {

using Positions = std::array<double, 12>;

Positions PositionsOf(ClsFindPlanetPosition &f) {
    return {f.FnFindLagnaPosition(), f.FnFindSunPosition(),     f.FnFindMoonPosition(),
            f.FnFindMarsPosition(),  f.FnFindMercuryPosition(), f.FnFindJupiterPosition(),
            f.FnFindVenusPosition(), f.FnFindSaturnPosition(),  f.FnFindRahuPosition(),
            f.FnFindKethuPosition(), f.FnFindMidHeaven(),       f.FnFindAyanamsa()};
}

Positions PositionsAt(const CivilMoment &civil, double zone, const char *zoneSide, const BirthPlace &place) {
    ClsFindPlanetPosition facade;
    FindPositions(facade, civil, zone, zoneSide, place, "Lahiri");
    return PositionsOf(facade);
}

const CivilMoment birth{{1965, 7, 14}, {14, 15, 0}};

TEST(ClsFindPlanetPosition, TurnsHemisphereLettersIntoSigns) {
    const BirthPlace south{33, 52, "S", 151, 13, "E"};
    const Positions expected = PositionsAt(birth, 10, "E", south);
    EXPECT_EQ(PositionsAt(birth, 10, "E", {-33, 52, "S", -151, 13, "E"}), expected)
        << "a negative value passes";
    EXPECT_EQ(PositionsAt(birth, 10, "E", {-33, 52, "N", -151, 13, "W"}), expected) << "whatever its letter";
    EXPECT_EQ(PositionsAt(birth, -10, "W", south), expected) << "a zone is turned by W alone";
    EXPECT_EQ(PositionsAt(birth, 10, "", south), expected);
    // The sign rests on the degrees, so that minutes alone always count North and West.
    EXPECT_EQ(PositionsAt(birth, 0, "E", {0, 40, "S", 0, 30, "E"}),
              PositionsAt(birth, 0, "E", {0, 40, "N", 0, 30, "W"}));
}

TEST(ClsFindPlanetPosition, TakesNoNoticeOfSecondsAndDaylightHours) {
    const BirthPlace place{13, 5, "N", 80, 17, "E"};
    const Positions expected = PositionsAt(birth, 5.5, "E", place);
    EXPECT_EQ(PositionsAt({birth.date, {14, 15, 59}}, 5.5, "E", place), expected);
    ClsFindPlanetPosition facade;
    facade.FindFixValues(MomentOf(birth.date, birth.clock), "N", 13, 5, "E", 80, 17, 5.5, "E", 1, "Lahiri", 0,
                         0);
    EXPECT_EQ(PositionsOf(facade), expected);
}

TEST(ClsPlanet, KeepsDaylightSavingFromTheLagna) {
    const auto at = [](int hour, double daylight) {
        ClsPlanet planet;
        planet.BirthDateTime = MomentOf({1990, 6, 1}, {hour, 30, 0});
        planet.TZone = 1;
        planet.CL_LatitudeDeg = 48;
        planet.DSAVE = daylight;
        planet.AyType = "Lahiri";
        planet.FnCalculate();
        return planet;
    };
    EXPECT_NEAR(at(12, 1).ChandraValue - at(12, 1).Ayanamsa, at(11, 0).ChandraValue - at(11, 0).Ayanamsa,
                1e-9);
    EXPECT_EQ(at(12, 1).LagnaValue, at(12, 0).LagnaValue);
    EXPECT_EQ(at(12, 1).Ayanamsa, at(12, 0).Ayanamsa);
}

TEST(ClsPlanet, RaisesOnInvalidNumbers) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double wrong : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN(), 1e300}) {
        EXPECT_THROW(PositionsAt(birth, wrong, "E", {}), ArithmeticError) << wrong;
        EXPECT_THROW(PositionsAt(birth, 0, "E", {0, 0, "N", wrong, 0, "E"}), ArithmeticError) << wrong;
    }
    EXPECT_THROW(PositionsAt(birth, 0, "E", {std::numeric_limits<double>::quiet_NaN(), 0, "N"}),
                 ArithmeticError);
}

TEST(ClsPlanet, GivesLongitudesForEveryBirth) {
    ClsFindPlanetPosition facade;
    EXPECT_EQ(PositionsOf(facade), Positions{}) << "before the first run";
    // From 1800 on, in steps of 27 days and some hours, all around the Earth.
    for (int i = 0; i < 4000; ++i) {
        const Moment moment = DateAdd(Interval::Minute, i * 39367, MomentOf({1800, 1, 1}));
        FindPositions(facade, Split(moment), i % 25 / 2.0, i % 2 == 0 ? "E" : "W",
                      {i * 7.0 - i * 7 / 91 * 91, i % 60 * 1.0, i % 3 == 0 ? "S" : "N",
                       i * 11.0 - i * 11 / 180 * 180, i % 59 * 1.0, i % 5 < 2 ? "W" : "E"},
                      "Lahiri");
        const Positions positions = PositionsOf(facade);
        for (std::size_t body = 0; body + 1 < positions.size(); ++body) {
            ASSERT_TRUE(positions[body] >= 0 && positions[body] <= 360) << i << ": " << positions[body];
        }
        ASSERT_NEAR(std::abs(positions[9] - positions[8]), 180, 1e-9) << i;
        ASSERT_TRUE(positions[11] > -26 && positions[11] < -21) << positions[11];
    }
}

} // namespace
} // namespace kelvaro
