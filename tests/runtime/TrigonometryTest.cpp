#include "runtime/Trigonometry.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelvaro {
namespace {

struct Expected {
    double argument, sine, cosine, tangent, arcTangent;
};

/// Computed with 400 bits and rounded: entries of the tables and what lies between them, turns of the circle,
/// angles close to its quarters, the largest angle, and arguments at which C libraries miss the last digit.
constexpr Expected expected[] = {
    // clang-format off
    {0, 0, 1, 0, 0},
    {0x1p-28, 0x1p-28, 1, 0x1p-28, 0x1p-28},
    {0x1p-27, 0x1p-27, 1, 0x1p-27, 0x1p-27},
    {0x1.0624dd2f1a9fcp-10, 0x1.0624da5218a62p-10, 0x1.ffffef390876cp-1, 0x1.0624e2e91ebe4p-10, 0x1.0624d77516e16p-10},
    {0x1p-7, 0x1.fffeaaaaeeeefp-8, 0x1.fffc000155552p-1, 0x1.00015557777afp-7, 0x1.fffd555bbba97p-8},
    {0x1p-6, 0x1.fffaaaaeeeed5p-7, 0x1.fff000155549fp-1, 0x1.0005557778549p-6, 0x1.fff555bbb729bp-7},
    {0x1p-1, 0x1.eaee8744b05fp-2, 0x1.c1528065b7d5p-1, 0x1.17b4f5bf3474ap-1, 0x1.dac670561bb4fp-2},
    {0x1.921fb54442d18p-1, 0x1.6a09e667f3bccp-1, 0x1.6a09e667f3bcdp-1, 0x1.fffffffffffffp-1, 0x1.54e04c05d06ap-1},
    {0x1.921fb54442d19p-1, 0x1.6a09e667f3bcdp-1, 0x1.6a09e667f3bccp-1, 0x1.0000000000001p+0, 0x1.54e04c05d06a1p-1},
    {1, 0x1.aed548f090ceep-1, 0x1.14a280fb5068cp-1, 0x1.8eb245cbee3a6p+0, 0x1.921fb54442d18p-1},
    {0x1.921fb54442d18p+0, 1, 0x1.1a62633145c07p-54, 0x1.d02967c31cdb5p+53, 0x1.00fe987ed02ffp+0},
    {0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53, -1, -0x1.1a62633145c07p-53, 0x1.433b8a322ddd3p+0},
    {-0x1.4p+1, -0x1.326af0dcfcab1p-1, -0x1.9a2f7ef858b7dp-1, 0x1.7e79b4e00bb15p-1, -0x1.30b6d796a4da8p+0},
    {0x1.6p+4, -0x1.220a29f6eb9f4p-7, -0x1.fffadd8d4acdap-1, 0x1.220d129b73ef8p-7, 0x1.867ed918ab138p+0},
    {0x1.63p+8, -0x1.f9bd0307d1de3p-16, -0x1.fffffffc18e4cp-1, 0x1.f9bd030bacc16p-16, 0x1.916719a0d5f4ep+0},
    {0x1.6ac5b262ca1ffp+22, -0x1.cb7089e511f6bp-3, 0x1.f2f339cf256dcp-1, -0x1.d774c41b81718p-3, 0x1.921fb271a5da4p+0},
    {-0x1.86ap+16, -0x1.24daa9c527e96p-5, -0x1.ffac3841b3da7p-1, 0x1.250a9d503313dp-5, -0x1.921f0d7e968a8p+0},
    {0x1p+24, -0x1.8f22f8433d6eep-1, 0x1.40ad67f3f0c9ap-1, -0x1.3ea28271a9beap+0, 0x1.921fb44442d18p+0},
    {-0x1.58e4af82d923dp+2, 0x1.8f3831ad765f9p-1, 0x1.4092fb5e55393p-1, 0x1.3ecdb90d654cfp+0, -0x1.632750e9ea441p+0},
    {-0x1.9a0b2c9935342p+2, -0x1.f992eadc98b07p-4, 0x1.fc15b5ff3c1ap-1, -0x1.fd7840d6a106cp-4, -0x1.6a7ca83531b8dp+0},
    {0x1.ff271ba1b13a8p+1, -0x1.81425e0e58a89p-1, -0x1.513912acc76f6p-1, 0x1.2477639e4b788p+0, 0x1.534f3ada31dccp+0},
    {-0x1.e6d5340df87b8p+0, -0x1.e4399feddc441p-1, -0x1.4cafb633663e5p-2, 0x1.749ba9e3a8e47p+1, -0x1.1630fb307f506p+0},
    {-0x1.99f0c941a3f7p-1, -0x1.6f86051997b19p-1, 0x1.64782d9731ba9p-1, -0x1.07f0433759212p+0, -0x1.59acca31db257p-1},
    {-0x1.cd73b03773268p+0, -0x1.f24fe87acda7p-1, -0x1.d663227f252ffp-3, 0x1.0f32982ac81e2p+2, -0x1.1075d185253bep+0},
    {-0x1.ef54393ebe3ep+1, 0x1.54bc93b1b7dd1p-1, -0x1.7e27b728aa33ap-1, -0x1.c8823b994bab1p-1, -0x1.5162d52cbf9b6p+0},
    {0x1.afd3a49aa7e3p+1, -0x1.d6fdfde5199fbp-3, -0x1.f246c4072b7bdp-1, 0x1.e3f6d9ceb2e63p-3, 0x1.485a8b3bf5355p+0},
    {-0x1.8d71ebde7a0bap+2, 0x1.2b2e1513917a2p-4, 0x1.fea1e39e10f9ap-1, 0x1.2bfb366ee5665p-4, -0x1.69405c9a78f76p+0},
    {-0x1.831f63eb1674p-2, -0x1.79f7897c80702p-2, 0x1.dbd887e3dca21p-1, -0x1.96af34f5ba581p-2, -0x1.721db5d8beeb9p-2},
    {0x1.5d62dd4fd10f8p+0, 0x1.f52c8f71b9c9cp-1, 0x1.a2ec6c82f946bp-3, 0x1.32433206797dfp+2, 0x1.e07c9a31bf127p-1},
    {0x1.38ed2933bae08p+2, -0x1.f7fe302753cacp-1, 0x1.68c7a8acdd32ap-3, -0x1.659ec5c2c9e53p+2, 0x1.5e7a8dc98065fp+0},
    {0x1.4e92985e2e33cp+23, -0x1.257f997806b3fp-1, -0x1.a386d7168769cp-1, 0x1.66313413850b5p-1, 0x1.921fb3bc8064cp+0},
    {-0x1.11df5b362dfa4p+22, -0x1.0fb8d5c39014dp-1, -0x1.b1f2c5648ff71p-1, 0x1.409852f80aab5p-1, -0x1.921fb18715ebfp+0},
    {-0x1.f13e29a7cb17cp+22, 0x1.e0f0501d8848dp-1, -0x1.5f3cccc1b101ep-2, -0x1.5e886eb1b5057p+1, -0x1.921fb33510dcdp+0},
    {-0x1.acc7b7e14ap+19, 0x1.2c099e5accb87p-1, -0x1.9ee00ef6418ddp-1, -0x1.724735a613c0cp-1, -0x1.921fa22949cf8p+0},
    // clang-format on
};

TEST(TrigonometryTest, IsCorrectToTheLastDigit) {
    for (const auto &[argument, sine, cosine, tangent, arcTangent] : expected) {
        SCOPED_TRACE(argument);
        for (const double sign : {1.0, -1.0}) {
            EXPECT_EQ(Sine(sign * argument), sign * sine);
            EXPECT_EQ(Cosine(sign * argument), cosine);
            EXPECT_EQ(Tangent(sign * argument), sign * tangent);
            EXPECT_EQ(ArcTangent(sign * argument), sign * arcTangent);
        }
    }
}

TEST(TrigonometryTest, TakesEveryNumberOrSaysSo) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const double quarter = std::acos(0.0);
    for (const double large : {0x1p24 + 1, 1e300, infinity, std::nan("")}) {
        EXPECT_THROW(Sine(large), ArithmeticError);
        EXPECT_THROW(Cosine(-large), ArithmeticError);
        EXPECT_THROW(Tangent(large), ArithmeticError);
    }
    EXPECT_EQ(ArcTangent(infinity), quarter);
    EXPECT_EQ(ArcTangent(-1e300), -quarter);
    EXPECT_EQ(ArcTangent(0x1p55), quarter);
    EXPECT_TRUE(std::isnan(ArcTangent(std::nan(""))));
    EXPECT_TRUE(std::signbit(Sine(-0.0)) && std::signbit(ArcTangent(-0.0)) && std::signbit(Tangent(-0.0)));
    EXPECT_EQ(Sine(std::numeric_limits<double>::denorm_min()), std::numeric_limits<double>::denorm_min());
}

} // namespace
} // namespace kelvaro
