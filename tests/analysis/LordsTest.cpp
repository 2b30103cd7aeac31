#include "analysis/Lords.h"

#include "analysis/SubLords.h"
#include "horoscope/NamesForLanguage.h"
#include "panchanga/clsStar.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace kelvaro {
namespace {

const Names english = *NamesIn(Language::English);   // NOLINT(cert-err58-cpp)
const Names sanskrit = *NamesIn(Language::Sanskrit); // NOLINT(cert-err58-cpp)

struct DasaLord {
    const char *name;
    int years;
};

/// The nine lords in the order of their periods, which rule the stars in turn and share each star among them
/// by years.
constexpr std::array<DasaLord, 9> dasaLords{{{"Kethu", 7},
                                             {"Venus", 20},
                                             {"Sun", 6},
                                             {"Moon", 10},
                                             {"Mars", 7},
                                             {"Rahu", 18},
                                             {"Jupiter", 16},
                                             {"Saturn", 19},
                                             {"Mercury", 17}}};

TEST(Lords, StarsGoRoundTheNineLords) {
    clsStar star;
    for (std::size_t place = 0; place < 27; ++place) {
        // The last pada of a star: in Uttarashada that is Abijit.
        star.PlanetPosition = static_cast<double>(place) * 40 / 3 + 12;
        star.findstar();
        EXPECT_EQ(StarLordOf(star.StarNo), dasaLords.at(place % 9).name) << star.StarName;
    }
    EXPECT_EQ(StarLordOf(21), "Sun");
    EXPECT_EQ(StarLordOf(0), "");
    EXPECT_EQ(StarLordOf(29), "");
}

TEST(Lords, RasisAreRuledFromTheLuminariesOutward) {
    // Either way round from Cancer and Leo: Mercury, Venus, Mars, Jupiter, Saturn.
    constexpr std::array<const char *, 6> outward{"Surya", "Budha", "Sukra", "Kuja", "Guru", "Sani"};
    for (std::size_t i = 0; i < 6; ++i) {
        const double forward = 120 + static_cast<double>(i) * 30;
        const double backward = std::fmod(90 - static_cast<double>(i) * 30 + 360, 360);
        EXPECT_EQ(RasiLordOf(sanskrit, forward, "Rasi"), outward.at(i));
        EXPECT_EQ(RasiLordOf(sanskrit, backward + 29.99, "Rasi"), i == 0 ? "Chandra" : outward.at(i));
    }
    // 44.5 degrees lie in Taurus, in its fifth navamsa: the fourteenth from Aries is Taurus, the next Gemini.
    EXPECT_EQ(RasiLordOf(sanskrit, 44.5, "Rasi"), "Sukra");
    EXPECT_EQ(RasiLordOf(sanskrit, 44.5, "Navamsa"), "Sukra");
    EXPECT_EQ(RasiLordOf(sanskrit, 47, "Navamsa"), "Budha");
    EXPECT_THROW(RasiLordOf(sanskrit, -1, "Rasi"), OverflowError);
}

TEST(Lords, NamesFollowTheLanguage) {
    EXPECT_EQ(LocalisedPlanetName(english, "Jupiter"), "Jupiter");
    EXPECT_EQ(LocalisedPlanetName(sanskrit, "Jupiter"), "Guru");
    EXPECT_EQ(LocalisedPlanetName(sanskrit, "Venus"), "Sukra");
    EXPECT_EQ(LocalisedPlanetName(english, "Kethu"), "Ketu");
    EXPECT_EQ(LocalisedPlanetName(english, "Ketu"), "");
    EXPECT_EQ(RasiNameOf(sanskrit, 12), "Meena");
    EXPECT_THROW(RasiNameOf(english, 0), OverflowError);
}

// Each star is shared among the nine by their years out of 120, its own lord first.
TEST(SubLords, ShareTheStarsByYears) {
    double start = 0;
    for (std::size_t star = 0; star < 27; ++star) {
        for (std::size_t i = 0; i < 9; ++i) {
            const DasaLord &lord = dasaLords.at((star + i) % 9);
            const double end = start + lord.years / 9.0;
            for (const double longitude : {start + 1e-9, (start + end) / 2, end - 1e-9}) {
                // One band of the airy signs belongs to the Sun by decree: the share of Venus in a star of
                // Rahu.
                const bool isDecreed = star % 9 == 5 && i == 5;
                EXPECT_EQ(SubLordOf(english, longitude),
                          isDecreed ? "Sun" : LocalisedPlanetName(english, lord.name))
                    << longitude;
            }
            start = end;
        }
    }
    EXPECT_NEAR(start, 360, 1e-9);
}

TEST(SubLords, ALimitBelongsToTheBandThatEndsThere) {
    struct Case {
        std::string (*table)(const Names &, double);
        double degrees;
        const char *lord;
    };
    const std::array<Case, 14> cases{{
        {SubLordTable1, 0, "Ketu"},
        {SubLordTable1, 0.777777777777778, "Ketu"},
        {SubLordTable1, std::nextafter(0.777777777777778, 1), "Venus"},
        {SubLordTable1, 3, "Venus"},
        {SubLordTable1, std::nextafter(3.0, 4), "Sun"},
        {SubLordTable2, 24.1111111111111, "Mars"},
        {SubLordTable2, 30, "Saturn"},
        {SubLordTable2, 30.1, ""},
        {SubLordTable3, 15.2222222222222, "Ketu"},
        {SubLordTable3, std::nextafter(15.2222222222222, 16), "Sun"},
        {SubLordTable3, 18.1111111111111, "Sun"},
        {SubLordTable3, std::nextafter(18.1111111111111, 19), "Moon"},
        {SubLordTable4, 0, "Moon"},
        {SubLordTable4, -0.1, ""},
    }};
    for (const Case &expected : cases) {
        EXPECT_EQ(expected.table(english, expected.degrees), expected.lord) << expected.degrees;
    }
}

} // namespace
} // namespace kelvaro
