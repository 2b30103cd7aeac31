#include "analysis/SayanadiAvastha.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace kelvaro {
namespace {

TEST(SayanadiAvastha, CountsStarsWithoutAbijit) {
    clsStar star;
    EXPECT_EQ(SortedStarNumber(star, 275), 21);
    EXPECT_EQ(SortedStarNumber(star, 278), 21);
    EXPECT_EQ(SortedStarNumber(star, 281), 22);
    EXPECT_EQ(SortedStarNumber(star, 359), 27);
}

TEST(SayanadiAvastha, ALimitBelongsToTheLowerNavamsa) {
    EXPECT_EQ(NavamsaInRasi(0), 1);
    for (std::int16_t navamsa = 1; navamsa <= 9; ++navamsa) {
        // To fifteen digits, as a table gives it.
        const double digits = navamsa < 3 ? 1e14 : 1e13;
        const double limit = std::round(navamsa * 10.0 / 3 * digits) / digits;
        EXPECT_EQ(NavamsaInRasi(limit), navamsa);
        EXPECT_EQ(NavamsaInRasi(std::nextafter(limit, 99)), (navamsa + 1) % 10);
    }
}

struct AvasthaCase {
    double longitude;
    const char *lordName;
    double moon;
    double ishtaGhati;
    std::int16_t lagnaRasi;
    const char *avastha;
};

// Star times ordinal times navamsa, plus the star of the Moon, the ghatis and the rasi of the Lagna.
const std::array<AvasthaCase, 10> cases{{
    {100, "Mars", 285, 12.5, 5, "Netrapani"},      // 8 * 3 * 3 + 22 + 12 + 5 = 111
    {100, "Mars", 285, 13.5, 5, "Gamana"},         // 8 * 3 * 3 + 22 + 14 + 5 = 113
    {100, "Mars", 285, 12.4, 2, "Nidra"},          // 8 * 3 * 3 + 22 + 12 + 2 = 108
    {135, "Kethu", 285, 12, 5, "Aagamana"},        // 11 * 9 * 5 + 22 + 12 + 5 = 534
    {135, "Rahu", 285, 12, 5, "Kautuka"},          // 11 * 8 * 5 + 22 + 12 + 5 = 479
    {135, "Ketu", 285, 12, 5, "Netrapani"},        // no ordinal: 22 + 12 + 5 = 39
    {285, "Moon", 285, 0.5, 1, "Netrapani"},       // 22 * 2 * 5 + 22 + 0 + 1 = 243
    {0, "Sun", 0, 0, 12, "Upavesana"},             // 1 * 1 * 1 + 1 + 0 + 12 = 14
    {359.9, "Kethu", 359.9, 60.2, 12, "Aagamana"}, // 27 * 9 * 9 + 27 + 60 + 12 = 2286
    {0, "Sun", 0, -59.6, 1, "Netrapani"},          // 1 * 1 * 1 + 1 - 60 + 1 = -57 = -60 + 3
}};

TEST(SayanadiAvastha, FollowsTheSum) {
    clsStar star;
    for (const AvasthaCase &expected : cases) {
        EXPECT_EQ(SayanadiAvastha(star, expected.longitude, expected.lordName, 0, expected.moon,
                                  expected.lagnaRasi, expected.ishtaGhati),
                  expected.avastha)
            << expected.lordName << " at " << expected.longitude;
    }
}

TEST(SayanadiAvastha, ASumBeyondSixteenBitsIsAnError) {
    clsStar star;
    constexpr double ghati = 32267; // with 495 from the body itself 32762
    EXPECT_NO_THROW(SayanadiAvastha(star, 135, "Kethu", 0, 1, 4, ghati));
    EXPECT_THROW(SayanadiAvastha(star, 135, "Kethu", 0, 1, 5, ghati), OverflowError);
    EXPECT_THROW(SayanadiAvastha(star, 0, "", 0, 0, 1, 32768), OverflowError);
}

} // namespace
} // namespace kelvaro
