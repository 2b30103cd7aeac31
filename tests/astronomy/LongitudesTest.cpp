#include "tests/astronomy/Birth.h"

#include <gtest/gtest.h>

#include <array>

namespace kelvaro {
namespace {

enum Body : std::size_t { Sun, Moon, Mercury, Venus, Mars, Jupiter, Saturn, BodyCount };

/// Apparent geocentric longitudes for the true equinox of date, from the Swiss Ephemeris in its Moshier mode.
/// PyEphem agrees with every longitude to 0.001 degrees, with the distances to 0.0003. Both were given the
/// universal time of the row as dynamical time, as the theory takes it.
struct Row {
    CivilMoment civil;
    double zone;
    const char *zoneSide;
    double nutation;                        ///< in longitude, degrees
    double jupiterDistance, saturnDistance; ///< from the Earth, astronomical units
    double meanNode;                        ///< for the mean equinox; Chapront's polynomial agrees to 0.0001
    std::array<double, BodyCount> apparent; ///< degrees
};

// Most rows are spread over the years and the seasons. In 1815, 1867, 1899, 1985 and 2075 the cosine of the
// distance of Jupiter or Saturn is small, which makes their aberration swing to more than a tenth of a
// degree.
// clang-format off
const Row rows[] = {
    {{{1800,  1,  1}, { 0,  0, 0}},   0, "E", -0.0024, 4.1798,  8.2274,  33.2460,
     {280.4291, 348.4647, 268.3437, 233.6271, 244.3357,  84.5270, 128.7992}},
    {{{1815,  5,  5}, {22,  0, 0}},   0, "E", -0.0051, 4.6791,  9.8626,  96.5493,
     { 44.4836,   3.6554,  27.3529,  75.7460, 325.1390, 181.0263, 312.0795}},
    {{{1857,  5, 10}, {17, 30, 0}}, 5.5, "E", -0.0007, 5.8897,  9.6319,   3.9400,
     { 49.7308, 245.1416,  70.9023,  49.5748,  57.0622,  28.9438, 100.6052}},
    {{{1867, 11, 24}, {19,  0, 0}},   0, "E", -0.0020, 4.9363, 10.9370, 160.0519,
     {242.0699, 225.7967, 235.7385, 257.2895, 252.2442, 329.3013, 237.3367}},
    {{{1899, 12, 29}, {20, 45, 0}},   8, "W",  0.0048, 6.1316, 11.0308, 259.2519,
     {278.3156, 247.1959, 256.7438, 304.1331, 282.4805, 240.7816, 267.5067}},
    {{{1947,  8, 15}, { 0,  0, 0}}, 5.5, "E", -0.0036, 5.3132, 10.1414,  58.1952,
     {141.1105, 117.1005, 126.7955, 135.6826,  90.5778, 228.9995, 133.5948}},
    {{{1965,  7, 14}, {14, 15, 0}}, 5.5, "E", -0.0042, 5.8891,  9.0785,  71.6869,
     {111.6886, 298.8202, 137.9944, 136.3596, 188.0229,  78.8636, 347.0061}},
    {{{1985, 11, 23}, {23, 59, 0}}, 3.5, "W", -0.0032, 5.3077, 10.9526,  37.8282,
     {241.7945,  25.2519, 252.4641, 228.1956, 197.1948, 311.2558, 240.8392}},
    {{{2000,  1,  1}, {12,  0, 0}},   0, "E", -0.0039, 4.6212,  8.6528, 125.0446,
     {280.3682, 223.3149, 271.8881, 241.5649, 327.9627,  25.2530,  40.3957}},
    {{{2075, 12, 12}, {13,  0, 0}},   0, "E", -0.0048, 5.7177, 11.0356,  96.1590,
     {260.6122, 323.7588, 280.8193, 294.7050, 173.2119, 191.2962, 260.9176}},
    {{{2100, 12, 31}, {23, 59, 0}},  11, "W",  0.0025, 5.9554, 10.1617, 331.5845,
     {280.8295, 300.4923, 298.9305, 266.3913, 254.3316, 227.0844, 216.9893}},
};
// clang-format on

struct Tolerance {
    const char *name;
    double degrees;
};

/// Degrees, a little above the largest deviation in the rows.
constexpr std::array<Tolerance, BodyCount> tolerances{{
    {"Sun", 0.0035},     // five perturbations where the full theory has hundreds; 0.0025 in the rows
    {"Moon", 0.0055},    // fifty terms, the last of 0.0005, and the cubic terms missing; 0.0039 in the rows
    {"Mercury", 0.0035}, // four terms; 0.0025 in the rows
    {"Venus", 0.0035},   // five terms; 0.0031 in the rows, more at inferior conjunctions
    {"Mars", 0.0125},    // neither light-time nor aberration, 0.010 when Mars is far; 0.0109 in the rows
    {"Jupiter", 0.009},  // the great inequality in the shortened form; 0.0075 in the rows
    {"Saturn", 0.045}, // the same, with a wave of sixty years left over, and no light-time; 0.039 in the rows
}};

/// What the annual aberration takes from an apparent longitude, degrees.
double Aberration(const Row &row, Body body) {
    constexpr double radian = 3.14159265358979323846 / 180;
    return 0.005693 * std::cos((row.apparent[Sun] - row.apparent[body]) * radian);
}

/// The apparent longitudes with the marks of the theory: the Moon has a constant for the nutation, Mercury
/// and Venus have no aberration, that of Jupiter and Saturn is divided by the cosine of the distance taken as
/// radians.
std::array<double, BodyCount> Expected(const Row &row) {
    std::array<double, BodyCount> expected = row.apparent;
    expected[Moon] += 0.00461 - row.nutation;
    expected[Mercury] += Aberration(row, Mercury);
    expected[Venus] += Aberration(row, Venus);
    expected[Jupiter] += Aberration(row, Jupiter) * (1 - 1 / std::cos(row.jupiterDistance));
    expected[Saturn] += Aberration(row, Saturn) * (1 - 1 / std::cos(row.saturnDistance));
    return expected;
}

TEST(Longitudes, AgreeWithTheEphemerides) {
    ClsFindPlanetPosition facade;
    for (const Row &row : rows) {
        SCOPED_TRACE(testing::Message()
                     << row.civil.date.year << '-' << row.civil.date.month << '-' << row.civil.date.day);
        FindPositions(facade, row.civil, row.zone, row.zoneSide);
        const std::array<double, BodyCount> found{
            facade.FnFindSunPosition(),   facade.FnFindMoonPosition(), facade.FnFindMercuryPosition(),
            facade.FnFindVenusPosition(), facade.FnFindMarsPosition(), facade.FnFindJupiterPosition(),
            facade.FnFindSaturnPosition()};
        const std::array<double, BodyCount> expected = Expected(row);
        for (std::size_t body = 0; body < BodyCount; ++body) {
            EXPECT_NEAR(Deviation(found[body], expected[body]), 0, tolerances[body].degrees)
                << tolerances[body].name << ' ' << found[body];
        }
        // The node's polynomial lacks its cubic term and is good to 0.003 degrees over the three centuries.
        EXPECT_NEAR(Deviation(facade.FnFindRahuPosition(), row.meanNode), 0, 0.003);
        EXPECT_NEAR(Deviation(facade.FnFindKethuPosition(), row.meanNode + 180), 0, 0.003);
    }
}

/// Figures of a second program, written apart from this one in another language from the printed theory. The
/// ephemerides show whether the theory is right; these show a slip in its smallest terms, which hides below
/// their tolerances.
struct Figures {
    CivilMoment civil;
    double zone;
    const char *zoneSide;
    double lahiri;
    /// Tropical: Sun, Moon, Mercury, Venus, Mars, Jupiter, Saturn, Rahu, then Lagna and Midheaven of Chennai.
    std::array<double, BodyCount + 3> longitudes;
};

// clang-format off
const Figures figures[] = {
    {{{1800, 1, 1}, {0, 0, 0}}, 0, "E", -21.063319715,
     {280.428878868, 348.474939647, 268.348078301, 233.630794575, 244.345596373,
      84.503288331, 128.780168367, 33.247921946, 265.334945696, 180.745304918}},
    {{{1857, 5, 10}, {17, 30, 0}}, 5.5, "E", -21.865553061,
     {49.732048950, 245.148190147, 70.910071012, 49.583623325, 57.072966846,
      28.942721075, 100.621314472, 3.940987554, 217.544545720, 126.134580485}},
    {{{1965, 7, 14}, {14, 15, 0}}, 5.5, "E", -23.372143352,
     {111.689731222, 298.828326229, 138.001181420, 136.365601648, 188.030370728,
      78.870327316, 346.981173854, 71.686261947, 231.596444962, 141.159450798}},
    {{{2100, 12, 31}, {23, 59, 0}}, 11, "W", -25.271090081,
     {280.827967607, 300.496184858, 298.934008552, 266.395550424, 254.340530990,
      227.078969344, 217.012435693, 331.581731928, 82.378401063, 344.781518173}},
    {{{2950, 8, 8}, {3, 7, 0}}, 13, "E", -37.157333850,
     {135.813060879, 166.270361627, 157.990032043, 179.359899101, 148.327180779,
      107.621397012, 162.290522257, 99.717202625, 334.208559223, 250.017175000}},
};
// clang-format on

TEST(Longitudes, AgreeWithASecondProgram) {
    const BirthPlace chennai{13, 5, "N", 80, 17, "E"};
    for (const Figures &r : figures) {
        SCOPED_TRACE(r.civil.date.year);
        ClsFindPlanetPosition facade;
        FindPositions(facade, r.civil, r.zone, r.zoneSide, chennai);
        const std::array<double, BodyCount + 3> found{
            facade.FnFindSunPosition(),    facade.FnFindMoonPosition(), facade.FnFindMercuryPosition(),
            facade.FnFindVenusPosition(),  facade.FnFindMarsPosition(), facade.FnFindJupiterPosition(),
            facade.FnFindSaturnPosition(), facade.FnFindRahuPosition(), facade.FnFindLagnaPosition(),
            facade.FnFindMidHeaven()};
        for (std::size_t i = 0; i < found.size(); ++i) {
            EXPECT_NEAR(Deviation(found[i], r.longitudes[i]), 0, 2e-8) << i;
        }
        FindPositions(facade, r.civil, r.zone, r.zoneSide, chennai, "Lahiri");
        EXPECT_NEAR(facade.FnFindAyanamsa(), r.lahiri, 2e-8);
    }
}

/// Points of the horizon and the meridian from the Swiss Ephemeris; by PyEphem each ascendant lies on the
/// eastern horizon to 0.001 degrees.
struct Horizon {
    CivilMoment civil;
    double zone;
    const char *zoneSide;
    BirthPlace place;
    double ascendant, midHeaven;
};

const Horizon horizons[] = {
    {{{1965, 7, 14}, {14, 15, 0}}, 5.5, "E", {13, 5, "N", 80, 17, "E"}, 231.5928, 141.1552},  // Chennai
    {{{1800, 1, 1}, {0, 0, 0}}, 0, "E", {51, 30, "N", 0, 10, "W"}, 187.2141, 99.4014},        // London
    {{{1899, 12, 29}, {20, 45, 0}}, 10, "E", {33, 52, "S", 151, 13, "E"}, 124.2939, 52.5482}, // Sydney
    {{{1985, 11, 23}, {23, 59, 0}}, 0, "W", {64, 8, "N", 21, 56, "W"}, 151.8885, 43.1644},    // Reykjavik
    {{{2050, 9, 9}, {18, 0, 0}}, 12, "E", {18, 8, "S", 178, 25, "E"}, 347.5267, 257.9556},    // Suva
    {{{1857, 5, 10}, {17, 30, 0}}, 3, "W", {54, 48, "S", 68, 18, "W"}, 224.6505, 106.3944},   // Ushuaia
};

TEST(Longitudes, OfLagnaAndMidheavenAgreeWithTheEphemerides) {
    ClsFindPlanetPosition facade;
    for (const Horizon &h : horizons) {
        SCOPED_TRACE(testing::Message() << h.place.latDeg << h.place.latSide << ' ' << h.civil.date.year);
        FindPositions(facade, h.civil, h.zone, h.zoneSide, h.place);
        // Mean sidereal time and mean obliquity: without nutation both points may be off by 0.006 degrees.
        EXPECT_NEAR(Deviation(facade.FnFindLagnaPosition(), h.ascendant), 0, 0.0065);
        EXPECT_NEAR(Deviation(facade.FnFindMidHeaven(), h.midHeaven), 0, 0.0055);
    }
}

} // namespace
} // namespace kelvaro
