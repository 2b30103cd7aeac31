#include "astronomy/theory/AngleReduction.h"
#include "astronomy/theory/DayNumber.h"
#include "astronomy/theory/PlanetTerms.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
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

TEST(DayNumber, AgreesWithTheJulianDay) {
    const struct {
        double year, month, day;
        double julianDay; ///< at 0 hours, by the Swiss Ephemeris
    } cases[] = {
        {1900, 1, 1, 2415020.5},
        {1800, 1, 1, 2378496.5},
        {1800, 3, 1, 2378555.5},
        {2000, 2, 29, 2451603.5},
        {3000, 12, 31, 2817151.5},
        {1000, 2, 29, 2086366.5},
        {1, 1, 1, 1721423.5},
        {1582, 10, 4, 2299159.5},
        {1582, 10, 15, 2299160.5},
        {1582, 12, 31, 2299237.5},
        {1583, 3, 1, 2299297.5},
        // The ten dates that the reform left out are Gregorian ones.
        {1582, 10, 5, 2299150.5},
        // The first two months of 1583 belong to the year of the reform and are still Julian.
        {1583, 1, 31, 2299278.5},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(DayNumberOf(c.year, c.month, c.day), c.julianDay - 2415020)
            << c.year << '-' << c.month << '-' << c.day;
    }
}

TEST(DayNumber, KnowsNoYearZeroAndNoYearBeyond16Bits) {
    EXPECT_FALSE(DayNumberOf(0, 1, 1).has_value());
    EXPECT_THROW(DayNumberOf(32768, 1, 1), OverflowError);
}

struct Time {
    double T, eccentricity;
    MeanAnomalies anomalies;
};

constexpr std::array<Time, 2> times{{
    {1.24, 0.048, {0.5, 1.1, -2.3, 4.7, 3.1}},
    {-0.93, 0.056, {-7.7, 5.2, 12.4, 0.9, -1.8}},
}};

struct Routine {
    const char *planet;
    OrbitCorrections (*corrections)(const Time &);
};

constexpr std::array<Routine, 5> routines{{
    {"Mercury", [](const Time &t) { return FnMercuryTerms(t.anomalies); }},
    {"Venus", [](const Time &t) { return FnVenusTerms(t.T, t.anomalies); }},
    {"Mars", [](const Time &t) { return FnMarsTerms(t.anomalies); }},
    {"Jupiter", [](const Time &t) { return FnJupiterTerms(t.T, t.eccentricity); }},
    {"Saturn", [](const Time &t) { return FnSaturnTerms(t.T, t.eccentricity); }},
}};

/// Longitude, radius, mean longitude, mean anomaly, eccentricity, semi-major axis, latitude.
using Figures = std::array<double, 7>;

Figures FiguresOf(const OrbitCorrections &d) {
    return {d.longitude,    d.radius,        d.meanLongitude, d.meanAnomaly,
            d.eccentricity, d.semiMajorAxis, d.latitude};
}

// Found with the series written out as printed formulas: a digit that slips in a coefficient shows here, be
// its term ever so small.
// clang-format off
constexpr std::array<std::array<Figures, routines.size()>, times.size()> printed{{
{{
    {0.000371812853038091, 1.52580645538834e-05, 0, 0, 0, 0, 0},
    {-0.00326902374593372, -6.94090020435439e-06, 1.20347117809487e-05, 1.20347117809487e-05, 0, 0, 0},
    {-0.00066861500107419, 7.69651335195193e-05, -0.000198735828981548, -0.000198735828981548, 0, 0, 0},
    {0, 0, 0.000100421335823996, 0.00767613551794361, -0.000259414484452562, -0.000532393507377306, 0},
    {0, 0, 0.00214424655355639, 0.085991059731794, -0.000888876753422965, 0.0145735873155276, 3.17143848531929e-05},
}},
{{
    {-0.00284144167213197, 1.47217788334012e-05, 0, 0, 0, 0, 0},
    {0.00140069054410954, 4.78212806649919e-06, 1.33244252899383e-05, 1.33244252899383e-05, 0, 0, 0},
    {-0.00669951964140718, 2.32716103439125e-05, 2.61753915488652e-06, 2.61753915488652e-06, 0, 0, 0},
    {0, 0, 0.00493621991668726, -0.013000713534255, 0.000388509362110863, -0.000475737316929543, 0},
    {0, 0, -0.0100172313153783, -0.0593778847772059, -0.00333740363686797, 0.00704021750057486, -8.13712462787021e-06},
}},
}};
// clang-format on

TEST(PlanetTerms, AgreeWithThePrintedSeries) {
    for (std::size_t time = 0; time < times.size(); ++time) {
        for (std::size_t planet = 0; planet < routines.size(); ++planet) {
            const Figures found = FiguresOf(routines[planet].corrections(times[time]));
            const Figures &expected = printed[time][planet];
            for (std::size_t i = 0; i < expected.size(); ++i) {
                // What a planet does not have is exactly 0.
                EXPECT_NEAR(found[i], expected[i], std::abs(expected[i]) * 1e-11)
                    << routines[planet].planet << ' ' << i;
            }
        }
    }
}

} // namespace
} // namespace kelvaro
