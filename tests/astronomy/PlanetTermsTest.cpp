#include "astronomy/theory/PlanetTerms.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace kelvaro {
namespace {

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
