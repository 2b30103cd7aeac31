#include "analysis/VimshottariDasa.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string_view>

namespace kelvaro {
namespace {

constexpr std::array<std::string_view, 9> lordsInOrder{"Sun",    "Moon",    "Mars",  "Rahu", "Jupiter",
                                                       "Saturn", "Mercury", "Kethu", "Venus"};

TEST(VimshottariDasa, LordsFollowInACircleOf120Years) {
    int years = 0;
    std::string_view lord = "Sun";
    for (const std::string_view expected : lordsInOrder) {
        EXPECT_EQ(lord, expected);
        years += DasaYears(lord);
        lord = NextDasaLord(lord);
    }
    EXPECT_EQ(lord, "Sun");
    EXPECT_EQ(years, 120);
    EXPECT_EQ(DasaYears("  Kethu "), 7);
    EXPECT_THROW(DasaYears("Ketu"), ConversionError);
    EXPECT_THROW(NextDasaLord(""), ConversionError);
}

TEST(VimshottariDasa, MinutesLeftInTheStar) {
    struct Case {
        std::int16_t star;
        double longitude;
        int minutes;
        std::int16_t place;
    };
    const std::array<Case, 11> cases{{
        {1, 0, 800, 1},
        {1, 13.3333333333333, 1, 1},
        {2, std::nextafter(13.3333333333333, 14), 801, 2}, // behind the start, before the whole minute
        {2, 13.3334, 800, 2},
        {3, 40, 0, 3},
        {10, 120.5, 770, 10},
        {21, 270, 600, 21},
        {22, 278, 120, 21},
        {23, 281, 740, 22},
        {28, 359.99, 1, 27},
        {28, 360, 0, 27},
    }};
    for (const Case &expected : cases) {
        std::int16_t star = expected.star;
        EXPECT_EQ(MinutesLeftInStar(star, expected.longitude), expected.minutes) << expected.longitude;
        EXPECT_EQ(star, expected.place) << expected.longitude;
    }
}

TEST(VimshottariDasa, BalanceIsTheShareOfTheStarThatIsLeft) {
    const Moment birth = MomentOf({1990, 1, 1});
    EXPECT_EQ(FindVimshottariDasa("Venus", 800, birth, 365.25).balance, 20);
    EXPECT_EQ(FindVimshottariDasa("Sun", 285, birth, 365.25).balance, 2.1375);
    // 0.1375 years are 1.65 months, 0.65 months 19.5 days.
    const YearsMonthsDays parts = DivideYears(2.1375);
    EXPECT_EQ(parts.years, 2);
    EXPECT_EQ(parts.months, 1);
    EXPECT_NEAR(parts.days, 19.5, 1e-9);
}

TEST(VimshottariDasa, DasaEndsKeepTheFractionOfADay) {
    // Six years are 2191.5 days, and 2192 days lie between the dates, which are older than the origin.
    const Moment birth = MomentOf({1850, 6, 15}, {18, 0, 0});
    const VimshottariDasa scheme = FindVimshottariDasa("Sun", 800, birth, 365.25);
    EXPECT_EQ(Split(scheme.DasaEnd[0]), (CivilMoment{{1856, 6, 15}, {6, 0, 0}}));
    EXPECT_EQ(Split(scheme.DasaEnd[8]), (CivilMoment{{1970, 6, 16}, {18, 0, 0}}));
    EXPECT_EQ(Split(FindVimshottariDasa("Sun", 400, birth, 360).DasaEnd[0]),
              (CivilMoment{{1853, 5, 30}, {18, 0, 0}}));
}

// The dasa of the Moon from 2000-01-01 on, days added before months and months before years. Jupiter's
// sixteen and Saturn's nineteen months come as a month less and thirty days more in the arithmetic of
// doubles.
TEST(VimshottariDasa, BhuktisRunByTheCalendar) {
    struct Case {
        const char *lord;
        CivilDate end;
    };
    constexpr std::array<Case, 9> cases{{
        {"Moon", {2000, 11, 1}},
        {"Mars", {2001, 6, 1}},
        {"Rahu", {2002, 12, 1}},
        {"Jupiter", {2004, 3, 31}},
        {"Saturn", {2005, 10, 30}},
        {"Mercury", {2007, 3, 30}},
        {"Kethu", {2007, 10, 30}},
        {"Venus", {2009, 6, 30}},
        {"Sun", {2009, 12, 30}},
    }};
    // A year of 365.3 days makes ten of them 3653 days, as there are from 2000 to 2010.
    const VimshottariDasa scheme = FindVimshottariDasa("Moon", 800, MomentOf({2000, 1, 1}), 365.3);
    ASSERT_EQ(Split(scheme.DasaEnd[0]).date, (CivilDate{2010, 1, 1}));
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(scheme.BhuktiLord[i], cases[i].lord);
        EXPECT_EQ(Split(scheme.BhuktiEnd[i]).date, cases[i].end) << cases[i].lord;
    }
    // Mars in its own dasa: 4 months and 27 days. The days go first: 2009-12-30 to 2010-01-26 to 2010-05-26.
    EXPECT_EQ(scheme.BhuktiLord[9], "Mars");
    EXPECT_EQ(Split(scheme.BhuktiEnd[9]).date, (CivilDate{2010, 5, 26}));
}

TEST(VimshottariDasa, TheYearLengthMovesDasasAndAntrasOnly) {
    const Moment birth = MomentOf({1975, 3, 21}, {5, 30, 0});
    const VimshottariDasa solar = FindVimshottariDasa("Saturn", 0, birth, 365.25);
    const VimshottariDasa savana = FindVimshottariDasa("Saturn", 0, birth, 360);
    EXPECT_EQ(solar.BhuktiEnd, savana.BhuktiEnd);
    const auto daysTo = [&](Moment end) { return end.Timeline() - birth.Timeline(); };
    EXPECT_NEAR(daysTo(solar.DasaEnd[8]), 101 * 365.25, 1e-6);
    EXPECT_NEAR(daysTo(savana.DasaEnd[8]), 101 * 360, 1e-6);
    // Saturn's own antra in its own bhukti: 19 x 19 x 19 / 40 days.
    EXPECT_NEAR(daysTo(solar.AntraEnd[0]), 171.475, 1e-6);
    EXPECT_NEAR(daysTo(savana.AntraEnd[0]), 171.475 * 360 / 365.25, 1e-6);
    EXPECT_NEAR(daysTo(solar.AntraEnd[728]), 43200, 1e-6);
}

TEST(VimshottariDasa, AntrasAreNamedByTheirPlace) {
    const VimshottariDasa scheme = FindVimshottariDasa("Kethu", 800, MomentOf({2000, 1, 1}), 365.25);
    EXPECT_EQ(scheme.AntraLord[0], "Kethu");
    EXPECT_EQ(scheme.AntraLord[8], "Mercury");
    EXPECT_EQ(scheme.AntraLord[9], "Venus");         // Venus in Venus in Kethu
    EXPECT_EQ(scheme.AntraLord[81 + 9 + 1], "Moon"); // behind Sun, in the Sun's bhukti of Venus
    EXPECT_EQ(scheme.AntraLord[728], "Jupiter");     // of Saturn in Mercury, both behind the last
}

} // namespace
} // namespace kelvaro
