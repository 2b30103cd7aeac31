#include "analysis/SubLords.h"

#include "panchanga/Sign.h"
#include "presentation/AngleText.h"

#include <algorithm>
#include <array>
#include <span>

namespace kelvaro {

namespace {

/// A stretch of a sign from above the limit of the band before it.
struct Band {
    double limit; ///< degrees in the sign, the limit itself included
    Body lord;
};

constexpr std::array<Band, 22> fieryBands{{
    {0.777777777777778, Body::Ketu},   {3.0, Body::Venus},
    {3.66666666666667, Body::Sun},     {4.77777777777778, Body::Moon},
    {5.55555555555556, Body::Mars},    {7.55555555555556, Body::Rahu},
    {9.33333333333333, Body::Jupiter}, {11.4444444444444, Body::Saturn},
    {13.3333333333333, Body::Mercury}, {15.5555555555556, Body::Venus},
    {16.2222222222222, Body::Sun},     {17.3333333333333, Body::Moon},
    {18.1111111111111, Body::Mars},    {20.1111111111111, Body::Rahu},
    {21.8888888888889, Body::Jupiter}, {24.0, Body::Saturn},
    {25.8888888888889, Body::Mercury}, {26.6666666666667, Body::Ketu},
    {27.3333333333333, Body::Sun},     {28.4444444444444, Body::Moon},
    {29.2222222222222, Body::Mars},    {30.0, Body::Rahu},
}};

constexpr std::array<Band, 19> earthyBands{{
    {1.22222222222222, Body::Rahu},
    {3.0, Body::Jupiter},
    {5.11111111111111, Body::Saturn},
    {7.0, Body::Mercury},
    {7.77777777777778, Body::Ketu},
    {10.0, Body::Venus},
    {11.1111111111111, Body::Moon},
    {11.8888888888889, Body::Mars},
    {13.8888888888889, Body::Rahu},
    {15.6666666666667, Body::Jupiter},
    {17.7777777777778, Body::Saturn},
    {19.6666666666667, Body::Mercury},
    {20.4444444444444, Body::Ketu},
    {22.6666666666667, Body::Venus},
    {23.3333333333333, Body::Sun},
    {24.1111111111111, Body::Mars},
    {26.1111111111111, Body::Rahu},
    {27.8888888888889, Body::Jupiter},
    {30.0, Body::Saturn},
}};

constexpr std::array<Band, 21> airyBands{{
    {1.88888888888889, Body::Mercury},
    {2.66666666666667, Body::Ketu},
    {4.88888888888889, Body::Venus},
    {5.55555555555556, Body::Sun},
    {6.66666666666667, Body::Moon},
    {8.66666666666667, Body::Rahu},
    {10.4444444444444, Body::Jupiter},
    {12.5555555555556, Body::Saturn},
    {14.4444444444444, Body::Mercury},
    {15.2222222222222, Body::Ketu},
    // The Sun holds two bands on end.
    {17.4444444444444, Body::Sun},
    {18.1111111111111, Body::Sun},
    {19.2222222222222, Body::Moon},
    {20.0, Body::Mars},
    {21.7777777777778, Body::Jupiter},
    {23.8888888888889, Body::Saturn},
    {25.7777777777778, Body::Mercury},
    {26.5555555555556, Body::Ketu},
    {28.7777777777778, Body::Venus},
    {29.4444444444444, Body::Sun},
    {30.0, Body::Moon},
}};

constexpr std::array<Band, 21> wateryBands{{
    {0.555555555555556, Body::Moon},
    {1.33333333333333, Body::Mars},
    {3.33333333333333, Body::Rahu},
    {5.44444444444444, Body::Saturn},
    {7.33333333333333, Body::Mercury},
    {8.11111111111111, Body::Ketu},
    {10.3333333333333, Body::Venus},
    {11.0, Body::Sun},
    {12.1111111111111, Body::Moon},
    {12.8888888888889, Body::Mars},
    {14.8888888888889, Body::Rahu},
    {16.6666666666667, Body::Jupiter},
    {18.5555555555556, Body::Mercury},
    {19.3333333333333, Body::Ketu},
    {21.5555555555556, Body::Venus},
    {22.2222222222222, Body::Sun},
    {23.3333333333333, Body::Moon},
    {24.1111111111111, Body::Mars},
    {26.1111111111111, Body::Rahu},
    {27.8888888888889, Body::Jupiter},
    {30.0, Body::Saturn},
}};

std::string LordInBands(const Names &names, std::span<const Band> bands, double degreesInRasi) {
    if (!(degreesInRasi >= 0)) {
        return {};
    }
    const auto found = std::find_if(bands.begin(), bands.end(),
                                    [=](const Band &band) { return degreesInRasi <= band.limit; });
    return found == bands.end() ? std::string() : LongNameOf(names, found->lord);
}

} // namespace

std::string SubLordTable1(const Names &names, double degreesInRasi) {
    return LordInBands(names, fieryBands, degreesInRasi);
}

std::string SubLordTable2(const Names &names, double degreesInRasi) {
    return LordInBands(names, earthyBands, degreesInRasi);
}

std::string SubLordTable3(const Names &names, double degreesInRasi) {
    return LordInBands(names, airyBands, degreesInRasi);
}

std::string SubLordTable4(const Names &names, double degreesInRasi) {
    return LordInBands(names, wateryBands, degreesInRasi);
}

std::string SubLordOf(const Names &names, double longitude) {
    const double degrees = DegreesInRasi(longitude);
    switch (RasiOfLongitude(longitude, rasiSize) % 4) {
    case 1:
        return SubLordTable1(names, degrees);
    case 2:
        return SubLordTable2(names, degrees);
    case 3:
        return SubLordTable3(names, degrees);
    default:
        return SubLordTable4(names, degrees);
    }
}

} // namespace kelvaro
