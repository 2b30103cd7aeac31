#include "panchanga/clsYoga.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

TEST(ClsYoga, CountsInSpansOfThreeDecimals) {
    clsYoga yoga;
    for (int number = 1; number <= 27; ++number) {
        yoga.moon_position = 200;
        yoga.sun_position = (number - 0.5) * 360 / 27 + 160;
        yoga.findyoga();
        EXPECT_EQ(yoga.YogaNo, number);
    }
}

TEST(ClsYoga, Bounds) {
    const struct {
        double moon, sun;
        int number;
        const char *name;
    } cases[] = {
        {0, 0, 1, "Vishkumbha"},       {13.333, 0, 1, "Vishkumbha"}, {13.3335, 0, 2, "Preeti"},
        {133.33, 0, 10, "Ganda"},      {133.3331, 0, 11, "Vriddhi"}, {226.661, 0, 17, "Vyatipaata"},
        {266.66, 0, 20, "Shiva"},      {266.661, 0, 21, "Siddha"},   {346.658, 0, 26, "Indra"},
        {346.66, 0, 27, "Vaidhriti"},  {359.99, 0, 27, "Vaidhriti"}, {180, 180, 27, "Vaidhriti"},
        {180, 180.5, 1, "Vishkumbha"}, {360, 360, 27, "Vaidhriti"},
    };
    for (const auto &expected : cases) {
        clsYoga yoga;
        yoga.moon_position = expected.moon;
        yoga.sun_position = expected.sun;
        yoga.findyoga();
        EXPECT_EQ(yoga.YogaNo, expected.number) << expected.moon;
        EXPECT_EQ(yoga.YogaName, expected.name) << expected.moon;
    }
}

TEST(ClsYoga, KeepsItsResultsOutsideTheCircle) {
    clsYoga yoga;
    yoga.moon_position = 100;
    yoga.findyoga();
    for (const double moon : {-0.1, 720.5}) {
        yoga.moon_position = moon;
        yoga.findyoga();
        EXPECT_EQ(yoga.YogaName, "Dhriti") << moon;
        EXPECT_EQ(yoga.YogaNo, 8) << moon;
    }
}

} // namespace
} // namespace kelvaro
