#include "presentation/AngleText.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace kelvaro {
namespace {

TEST(AngleText, WritesDegreesMinutesAndSeconds) {
    struct Case {
        double value;
        const char *minutes;
        const char *seconds;
    };
    constexpr std::array<Case, 10> cases{{
        {0, "0.0", "0.0.0"},
        {12.0833333, "12.5", "12.5.0"}, // 4 minutes 60 seconds before the carry
        {12 + 5 / 60.0 + 9 / 3600.0, "12.5", "12.5.9"},
        {3 + 40 / 60.0, "3.40", "3.40.0"},
        {29.99999, "29.60", "29.60.0"},
        {29.5 + 29.6 / 3600, "29.30", "29.30.30"},
        {17 + 59.6 / 3600, "17.1", "17.1.0"},
        {-12.5, "-12.30", "-12.30.0"},
        {-(13 / 60.0 + 2 / 3600.0), "-0.13", "-0.13.2"},
        {-0.0, "0.0", "0.0.0"},
    }};
    for (const Case &expected : cases) {
        EXPECT_EQ(DegreeMinuteText(expected.value), expected.minutes);
        EXPECT_EQ(DegreeMinuteSecondText(expected.value), expected.seconds);
    }
    EXPECT_THROW(DegreeMinuteText(std::numeric_limits<double>::quiet_NaN()), OverflowError);
}

TEST(AngleText, FoldsToTheSign) {
    EXPECT_EQ(FoldToSign(30), 0);
    EXPECT_EQ(FoldToSign(359.5), 29.5);
    EXPECT_EQ(FoldToSign(-5), -5);
}

} // namespace
} // namespace kelvaro
