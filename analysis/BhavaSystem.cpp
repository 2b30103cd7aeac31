#include "analysis/BhavaSystem.h"

#include "panchanga/Sign.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>

namespace kelvaro {

namespace {

/// Sun to Ketu. The Lagna opens house 1 by itself; Gulika and Maandi stand in no house.
constexpr std::span<const BodyFields> bodiesOfHouses{bodyFields.data() + 1, 9};

constexpr std::size_t houses = 12;
constexpr std::size_t houseEight = 7; // by index, from 0

/// From 0, the Lagna, in steps of half a house: 6 the lower Midheaven, 12 the setting point, 18 the
/// Midheaven, 24 the Lagna again. Degrees.
using BhavaPoints = std::array<double, 25>;

double Normalized(double degrees) {
    return Normalize360(degrees);
}

/// A sixth of the way forward from one point to another.
double StepBetween(double from, double to) {
    double arc = to - from;
    if (arc < 0) {
        arc += 360;
    }
    return arc / 6;
}

BhavaPoints DividedArcs(double lagna, double midHeaven) {
    BhavaPoints points{};
    const double lastStep = StepBetween(midHeaven, lagna);
    for (std::size_t i = 0; i <= 6; ++i) {
        points.at(18 + i) = static_cast<double>(i) * lastStep + midHeaven;
    }
    const double thirdStep = StepBetween(Normalized(lagna + 180), midHeaven);
    for (std::size_t i = 0; i <= 6; ++i) {
        // Ends on the Midheaven too; this later value of it stands.
        points.at(12 + i) = Normalized(static_cast<double>(i) * thirdStep + lagna + 180);
    }
    for (std::size_t i = 0; i < 12; ++i) {
        points.at(i) = Normalized(points.at(i + 12) + 180);
    }
    return points;
}

Houses MiddlesAtPoints(double lagna, double midHeaven) {
    const BhavaPoints points = DividedArcs(lagna, midHeaven);
    Houses found;
    for (std::size_t k = 0; k < houses; ++k) {
        found.BhavaMid.at(k) = Normalized(points.at(2 * k));
        found.BhavaSandhi.at(k) = Normalized(points.at(2 * k + 1));
    }
    for (std::size_t k = 0; k < houses; ++k) {
        found.BhavaStart.at(k) = found.BhavaSandhi.at((k + houses - 1) % houses);
    }
    return found;
}

/// The middle of house 2 to 11 (index k) between the middles that become its limits.
double MiddleOf(double start, double end, std::size_t k) {
    if (start > end) {
        // The step from house 8 to house 9 counts the rest of the circle and not the circle more.
        return (start + (k == houseEight ? 360 - end : end + 360)) / 2;
    }
    return (start + end) / 2;
}

/// The middle of house 12. It is the middle of house 1, and not its start, that decides whether 0 degrees
/// lies between, and that is allowed for if it does.
double LastMiddle(double start, double firstMiddle, double firstStart) {
    return start > firstMiddle ? (start + (firstMiddle + 360)) / 2 : (start + firstStart) / 2;
}

/// The houses that start at the given mid points.
Houses StartsAtMiddles(const std::array<double, 12> &middles) {
    Houses found;
    found.BhavaStart = middles;
    std::ranges::rotate_copy(middles, middles.begin() + 1, found.BhavaSandhi.begin());
    // No allowance for a passage through 0 degrees in the first house.
    const double firstMiddle = (middles.at(1) + middles.at(0)) / 2;
    found.BhavaMid.at(0) = Normalized(firstMiddle);
    for (std::size_t k = 1; k < houses - 1; ++k) {
        found.BhavaMid.at(k) = Normalized(MiddleOf(middles.at(k), middles.at(k + 1), k));
    }
    found.BhavaMid.back() = Normalized(LastMiddle(middles.back(), firstMiddle, middles.front()));
    return found;
}

struct Range {
    double lower, upper; ///< degrees, both included
};

std::vector<Range> RangesOf(double start, double end) {
    // Two fixed limits tell a house across 0 degrees, not the order of its start and end.
    if (start >= 329 && end <= 345) {
        return {{start, 360}, {0, end}};
    }
    return {{start, end}};
}

} // namespace

double Normalize360(double &degrees) {
    constexpr double largestAngle = 1e9;
    if (!(std::abs(degrees) <= largestAngle)) {
        throw ArithmeticError("Overflow: an angle too large to be brought to the circle");
    }
    while (degrees < 0) {
        degrees += 360;
    }
    while (degrees >= 360) {
        degrees -= 360;
    }
    return degrees;
}

std::int16_t Reduce12(std::int16_t number) {
    while (number >= 13) {
        number = static_cast<std::int16_t>(number - 12);
    }
    return number;
}

std::vector<Body> BodiesInBhava(const Positions &positions, double start, double end) {
    std::vector<Body> bodies;
    for (const Range &range : RangesOf(start, end)) {
        for (const BodyFields &fields : bodiesOfHouses) {
            const double longitude = positions.*fields.longitude;
            if (longitude >= range.lower && longitude <= range.upper) {
                bodies.push_back(fields.body);
            }
        }
    }
    return bodies;
}

std::string PlanetsInBhava(const Positions &positions, const Names &names, double start, double end) {
    std::string planets;
    for (const Body body : BodiesInBhava(positions, start, end)) {
        planets.append(planets.empty() ? "" : " ").append(ShortNameOf(names, body));
    }
    return planets;
}

Houses HousesOf(const Positions &positions, HouseSystem system, const Names &names) {
    Houses found = MiddlesAtPoints(positions.LagnaLon, positions.MidHeaven);
    if (system == HouseSystem::NotEqual) {
        found = StartsAtMiddles(found.BhavaMid);
    }
    const int lagnaRasi = RasiOfLongitude(positions.LagnaLon, rasiSize);
    for (std::size_t k = 0; k < houses; ++k) {
        const double start = found.BhavaStart.at(k);
        const double end = found.BhavaSandhi.at(k);
        found.BhavaRasi.at(k) = Reduce12(ToInt16(lagnaRasi + static_cast<int>(k)));
        found.bodies.at(k) = BodiesInBhava(positions, start, end);
        found.BhavaPlanets.at(k) = PlanetsInBhava(positions, names, start, end);
    }
    found.bodies.front().insert(found.bodies.front().begin(), Body::Lagna);
    found.BhavaPlanets.front().insert(0, ShortNameOf(names, Body::Lagna) + " ");
    return found;
}

} // namespace kelvaro
