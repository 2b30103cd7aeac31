#include "astronomy/theory/AngleReduction.h"
#include "astronomy/theory/PlanetTerms.h"
#include "runtime/Trigonometry.h"

#include <array>
#include <span>

namespace kelvaro {

namespace {

/// coefficient x cos(multiples of the mean anomalies + phase)
struct Term {
    double coefficient;
    int mercury, venus, earth, mars, jupiter;
    double phase; ///< radians
};

// Longitudes in degrees, radius vectors in astronomical units.

constexpr std::array<Term, 4> mercuryLongitude{{
    {0.00204, -2, 5, 0, 0, 0, 0.21328},
    {0.00103, -1, 2, 0, 0, 0, -2.8046},
    {0.00091, -1, 0, 0, 0, 2, -0.64582},
    {0.00078, -3, 5, 0, 0, 0, 0.17692},
}};

constexpr std::array<Term, 4> mercuryRadius{{
    {6.802e-06, -3, 5, 0, 0, 0, -4.53642},
    {7.525e-06, -1, 0, 0, 0, 2, 0.925251},
    {5.457e-06, -2, 2, 0, 0, 0, -1.24246},
    {3.569e-06, -1, 5, 0, 0, 0, -1.35699},
}};

constexpr std::array<Term, 5> venusLongitude{{
    {0.00313, 0, -2, 2, 0, 0, -2.587},
    {0.00198, 0, -3, 3, 0, 0, 0.044768},
    {0.00136, 0, -1, 1, 0, 0, -2.0788},
    {0.00096, 0, -2, 3, 0, 0, -2.3721},
    {0.00082, 0, -1, 0, 0, 1, -3.6318},
}};

constexpr std::array<Term, 7> venusRadius{{
    {2.2501e-05, 0, -2, 2, 0, 0, -1.01592},
    {1.9045e-05, 0, -3, 3, 0, 0, 1.61577},
    {6.887e-06, 0, -1, 0, 0, 1, -2.06106},
    {5.172e-06, 0, -1, 1, 0, 0, -0.508065},
    {3.62e-06, 0, -4, 5, 0, 0, -1.81877},
    {3.283e-06, 0, -4, 4, 0, 0, 1.10851},
    {3.074e-06, 0, -2, 0, 0, 2, -0.962846},
}};

constexpr std::array<Term, 9> marsLongitude{{
    {0.00705, 0, 0, 0, -1, 1, -0.85448},
    {0.00607, 0, 0, 0, -1, 2, -3.2873},
    {0.00445, 0, 0, 0, -2, 2, -3.3492},
    {0.00388, 0, 0, 1, -2, 0, 0.35771},
    {0.00238, 0, 0, 1, -1, 0, 0.61256},
    {0.00204, 0, 0, 2, -3, 0, 2.7688},
    {0.00177, 0, -1, 0, 3, 0, -1.0053},
    {0.00136, 0, 0, 2, -4, 0, 2.6894},
    {0.00104, 0, 0, 0, 0, 1, 0.30749},
}};

constexpr std::array<Term, 13> marsRadius{{
    {5.3227e-05, 0, 0, 0, -1, 1, 0.717864},
    {5.0989e-05, 0, 0, 0, -2, 2, -1.77997},
    {3.8278e-05, 0, 0, 0, -1, 2, -1.71617},
    {1.5996e-05, 0, 0, 1, -1, 0, -0.969618},
    {1.4764e-05, 0, 0, 2, -3, 0, 1.19768},
    {8.966e-06, 0, 0, 0, -2, 1, 0.761225},
    {7.914e-06, 0, 0, 0, -2, 3, -2.43887},
    {7.004e-06, 0, 0, 0, -3, 2, -1.79573},
    {6.62e-06, 0, 0, 1, -2, 0, 1.97575},
    {4.93e-06, 0, 0, 0, -3, 3, -1.33069},
    {4.693e-06, 0, 0, 3, -5, 0, 3.32665},
    {4.571e-06, 0, 0, 2, -4, 0, 4.27086},
    {4.409e-06, 0, 0, 0, -1, 3, -2.02158},
}};

double Sum(std::span<const Term> terms, const MeanAnomalies &M) {
    double sum = 0;
    for (const Term &term : terms) {
        sum +=
            term.coefficient * Cosine(term.mercury * M.mercury + term.venus * M.venus + term.earth * M.earth +
                                      term.mars * M.mars + term.jupiter * M.jupiter + term.phase);
    }
    return sum;
}

} // namespace

OrbitCorrections FnMercuryTerms(const MeanAnomalies &anomalies) {
    OrbitCorrections corrections;
    corrections.longitude = Sum(mercuryLongitude, anomalies);
    corrections.radius = Sum(mercuryRadius, anomalies);
    return corrections;
}

OrbitCorrections FnVenusTerms(double centuries, const MeanAnomalies &anomalies) {
    OrbitCorrections corrections;
    corrections.meanLongitude = 0.00077 * Sine(4.1406 + 2.6227 * centuries) * degreesToRadians;
    corrections.meanAnomaly = corrections.meanLongitude;
    corrections.longitude = Sum(venusLongitude, anomalies);
    corrections.radius = Sum(venusRadius, anomalies);
    return corrections;
}

OrbitCorrections FnMarsTerms(const MeanAnomalies &anomalies) {
    const double A = 3 * anomalies.jupiter - 8 * anomalies.mars + 4 * anomalies.earth;
    OrbitCorrections corrections;
    corrections.meanLongitude = -(0.01133 * Sine(A) + 0.00933 * Cosine(A)) * degreesToRadians;
    corrections.meanAnomaly = corrections.meanLongitude;
    corrections.longitude = Sum(marsLongitude, anomalies);
    corrections.radius = Sum(marsRadius, anomalies);
    return corrections;
}

} // namespace kelvaro
