#include "astronomy/theory/PlanetPlace.h"

#include "astronomy/theory/AngleReduction.h"
#include "astronomy/theory/KeplerEquation.h"
#include "astronomy/theory/PlanetTerms.h"
#include "runtime/Trigonometry.h"

#include <array>
#include <cmath>
#include <optional>

namespace kelvaro {

namespace {

/// What differs from planet to planet in the one procedure that they share.
struct PlanetCourse {
    int passes;   ///< two passes take the light-time of the first one into the second
    bool isInner; ///< nearer to the Sun than the Earth
    std::optional<double> aberrationPi;
};

constexpr std::array<PlanetCourse, 5> courses{{
    {2, true, std::nullopt},  // Mercury
    {2, true, std::nullopt},  // Venus
    {1, false, std::nullopt}, // Mars
    {2, false, 3.1415927},    // Jupiter
    {1, false, pi},           // Saturn
}};

constexpr double lightDaysPerUnit = 0.005775518;

/// The moment and the Earth's part, the same for all passes.
struct View {
    double centuries;
    const PlanetElements &elements;
    double earthLongitude; ///< heliocentric, radians
    double earthDistance;  ///< astronomical units
};

/// The outcome of one pass.
struct Place {
    double longitude;          ///< heliocentric, in the ecliptic, radians
    double distance;           ///< from the Sun, in the ecliptic, astronomical units
    double fromEarth;          ///< astronomical units
    double fromEarthLongitude; ///< longitude less that of the Earth, radians
};

/// Radians, at the time less the light-time in days.
double MeanAnomaly(const OrbitalElements &orbit, double lightTime) {
    return (orbit.meanLongitude - orbit.perihelion - orbit.dailyMotion * lightTime) * degreesToRadians;
}

OrbitCorrections TermsOf(Planet planet, const View &view, double lightTime) {
    const auto anomaly = [&](Planet other) { return MeanAnomaly(view.elements.Of(other), lightTime); };
    MeanAnomalies anomalies;
    anomalies.mercury = anomaly(Planet::Mercury);
    anomalies.venus = anomaly(Planet::Venus);
    anomalies.earth = FnFindSunMeanAnomaly(view.centuries);
    anomalies.mars = anomaly(Planet::Mars);
    anomalies.jupiter = anomaly(Planet::Jupiter);
    switch (planet) {
    case Planet::Mercury:
        return FnMercuryTerms(anomalies);
    case Planet::Venus:
        return FnVenusTerms(view.centuries, anomalies);
    case Planet::Mars:
        return FnMarsTerms(anomalies);
    case Planet::Jupiter:
        return FnJupiterTerms(view.centuries, view.elements.Of(planet).eccentricity);
    case Planet::Saturn:
        return FnSaturnTerms(view.centuries, view.elements.Of(planet).eccentricity);
    }
    return {};
}

Place PassOf(Planet planet, const View &view, double lightTime) {
    const OrbitalElements &orbit = view.elements.Of(planet);
    const OrbitCorrections terms = TermsOf(planet, view, lightTime);
    const double e = orbit.eccentricity + terms.eccentricity;
    const double v = FnSolveKepler(MeanAnomaly(orbit, lightTime) + terms.meanAnomaly, e).trueAnomaly;
    const double r =
        (1 - e * e) * (orbit.semiMajorAxis + terms.semiMajorAxis) / (1 + e * Cosine(v)) + terms.radius;
    const double inOrbit = ((terms.meanLongitude - terms.meanAnomaly) * radiansToDegrees +
                            (v * radiansToDegrees + orbit.perihelion)) *
                           degreesToRadians;
    const double node = orbit.node * degreesToRadians;
    const double inclination = orbit.inclination * degreesToRadians;
    const double sinU = Sine(inOrbit - node);
    const double cosU = Cosine(inOrbit - node);
    const double latitude = FnArcSin(Sine(inclination) * sinU) + terms.latitude;

    Place place{};
    place.longitude =
        ArcTangent(Cosine(inclination) * sinU / cosU) + node + terms.longitude * degreesToRadians;
    if (cosU < 0) {
        place.longitude += pi;
    }
    if (place.longitude > fullCircle) {
        place.longitude -= fullCircle;
    }
    const double R = view.earthDistance;
    place.distance = r * Cosine(latitude);
    place.fromEarthLongitude = place.longitude - view.earthLongitude;
    place.fromEarth =
        std::sqrt(R * R + r * r - 2 * R * r * Cosine(latitude) * Cosine(place.fromEarthLongitude));
    return place;
}

/// Radians, 0 to the full circle.
double GeocentricLongitude(const Place &place, const View &view, bool isInner) {
    const double sine = Sine(place.fromEarthLongitude);
    const double cosine = Cosine(place.fromEarthLongitude);
    const double R = view.earthDistance;
    const double rd = place.distance;
    return NormalizeRadians(isInner ? ArcTangent(-rd * sine / (R - rd * cosine)) + view.earthLongitude + pi
                                    : ArcTangent(R * sine / (rd - R * cosine)) + place.longitude);
}

} // namespace

double FnFindPlanet(Planet planet, double centuries, const PlanetElements &elements, const SunPlace &sun) {
    const PlanetCourse &course = courses.at(static_cast<std::size_t>(planet));
    const View view{centuries, elements, sun.trueLongitude + pi, sun.distance};
    Place place = PassOf(planet, view, 0);
    for (int pass = 2; pass <= course.passes; ++pass) {
        place = PassOf(planet, view, place.fromEarth * lightDaysPerUnit);
    }
    double longitude = GeocentricLongitude(place, view, course.isInner) + sun.nutation * degreesToRadians;
    if (course.aberrationPi) {
        const double c = Cosine(view.earthLongitude + *course.aberrationPi - longitude);
        // The distance goes to the cosine as it stands, as if it were an angle: the correction swings with
        // it.
        longitude -= 9.9387e-05 * c / Cosine(place.fromEarth);
    }
    return FnNormalize360(longitude * radiansToDegrees);
}

} // namespace kelvaro
