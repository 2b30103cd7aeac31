#include "astronomy/theory/AngleReduction.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace kelvaro {
namespace {

TEST(AngleReduction, KeepsBothEndsOfTheCircle) {
    const struct {
        double angle, normalized, reduced;
    } cases[] = {{0, 0, 0},       {360, 360, 0},     {-720, 0, 0},
                 {720, 360, 0},   {360.5, 0.5, 0.5}, {-90.25, 269.75, -90.25},
                 {-370, 350, -10}};
    for (const auto &c : cases) {
        EXPECT_EQ(FnNormalize360(c.angle), c.normalized) << c.angle;
        EXPECT_EQ(FnReduceDegrees(c.angle), c.reduced) << c.angle;
    }
    EXPECT_EQ(NormalizeRadians(6.283185308), 6.283185308) << "the literal circle is not taken off";
    EXPECT_EQ(FnReduceRadians(6.283185308), 0);
    EXPECT_NEAR(FnReduceRadians(-1), 5.283185308, 1e-12);
}

TEST(AngleReduction, RaisesWhereCirclesWouldBeTakenOffWithoutEnd) {
    for (const double angle :
         {1e300, -1e300, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(FnNormalize360(angle), ArithmeticError) << angle;
        EXPECT_THROW(NormalizeRadians(angle), ArithmeticError) << angle;
    }
}

TEST(AngleReduction, FindsArcsInTheirQuadrants) {
    const struct {
        double y, x, degrees;
    } cases[] = {{0, 1, 0},     {1, 1, 45},   {1, 0, 90},   {1, -1, 135}, {0, -1, 180},
                 {-1, -1, 225}, {-1, 0, 270}, {-1, 1, 315}, {0, 0, 0}};
    for (const auto &c : cases) {
        EXPECT_NEAR(FnArcTan2(c.y, c.x) * 180 / pi, c.degrees, 1e-9) << c.y << " / " << c.x;
    }
    EXPECT_NEAR(FnArcSin(0.5), pi / 6, 1e-12);
    EXPECT_NEAR(FnArcSin(-0.5), -pi / 6, 1e-12);
}

} // namespace
} // namespace kelvaro
