#include "analysis/Ashtakavarga.h"

#include "panchanga/Sign.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

namespace {

/// Houses counted from a contributor, in rising order; unused places are 0.
using Houses = std::array<std::uint8_t, 9>;

/// The contributors in the order of the table's columns: Venus stands before Jupiter here.
constexpr std::array<std::int16_t Positions::*, 8> contributors{
    &Positions::SunRasi,   &Positions::MoonRasi,    &Positions::MarsRasi,   &Positions::MercuryRasi,
    &Positions::VenusRasi, &Positions::JupiterRasi, &Positions::SaturnRasi, &Positions::LagnaRasi,
};

struct PointsRule {
    int total; ///< points over all twelve rasis, whatever the chart
    std::array<Houses, contributors.size()> houses;
};

// clang-format off
/// Receivers in the order of the grid's columns: Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Lagna, Rahu.
constexpr std::array<PointsRule, 9> rules{{
    // Sun
    {48, {{{1, 2, 4, 7, 8, 9, 10, 11},
           {3, 6, 10, 11},
           {1, 2, 4, 7, 8, 9, 10, 11},
           {3, 5, 6, 9, 10, 11, 12},
           {6, 7, 12},
           {5, 6, 9, 11},
           {1, 2, 4, 7, 8, 9, 10, 11},
           {3, 4, 6, 10, 11, 12}}}},
    // Moon
    {49, {{{3, 6, 7, 8, 10, 11},
           {1, 3, 6, 7, 10, 11},
           {2, 3, 5, 6, 9, 10, 11},
           {1, 3, 4, 5, 7, 8, 10, 11},
           {3, 4, 5, 7, 9, 10, 11},
           {1, 4, 7, 8, 10, 11, 12},
           {3, 5, 6, 11},
           {3, 6, 10, 11}}}},
    // Mars
    {39, {{{3, 5, 6, 10, 11},
           {3, 6, 11},
           {1, 2, 4, 7, 8, 10, 11},
           {3, 5, 6, 11},
           {6, 8, 11, 12},
           {6, 10, 11, 12},
           {1, 4, 7, 8, 9, 10, 11},
           {1, 3, 6, 10, 11}}}},
    // Mercury
    {54, {{{5, 6, 9, 11, 12},
           {2, 4, 6, 8, 10, 11},
           {1, 2, 4, 7, 8, 9, 10, 11},
           {1, 3, 5, 6, 9, 10, 11, 12},
           {1, 2, 3, 4, 5, 8, 9, 11},
           {6, 8, 11, 12},
           {1, 2, 4, 7, 8, 9, 10, 11},
           {1, 2, 4, 6, 8, 10, 11}}}},
    // Jupiter
    {56, {{{1, 2, 3, 4, 7, 8, 9, 10, 11},
           {2, 5, 7, 9, 11},
           {1, 2, 4, 7, 8, 10, 11},
           {1, 2, 4, 5, 6, 9, 10, 11},
           {2, 5, 6, 9, 10, 11},
           {1, 2, 3, 4, 7, 8, 10, 11},
           {3, 5, 6, 12},
           {1, 2, 4, 5, 6, 7, 9, 10, 11}}}},
    // Venus
    {52, {{{8, 11, 12},
           {1, 2, 3, 4, 5, 8, 9, 11, 12},
           {3, 5, 6, 9, 11, 12},
           {3, 5, 6, 9, 11},
           {1, 2, 3, 4, 5, 8, 9, 10, 11},
           {5, 8, 9, 10, 11},
           {3, 4, 5, 8, 9, 10, 11},
           {1, 2, 3, 4, 5, 8, 9, 11}}}},
    // Saturn
    {39, {{{1, 2, 4, 7, 8, 10, 11},
           {3, 6, 11},
           {3, 5, 6, 10, 11, 12},
           {6, 8, 9, 10, 11, 12},
           {6, 11, 12},
           {5, 6, 11, 12},
           {3, 5, 6, 11},
           {1, 3, 4, 6, 10, 11}}}},
    // Lagna
    {49, {{{3, 4, 6, 10, 11, 12},
           {3, 6, 10, 11, 12},
           {1, 3, 6, 10, 11},
           {1, 2, 4, 6, 8, 10, 11},
           {1, 2, 3, 4, 5, 8, 9},
           {1, 2, 4, 5, 6, 7, 9, 10, 11},
           {1, 3, 4, 6, 10, 11},
           {3, 6, 10, 11}}}},
    // Rahu
    {43, {{{1, 2, 3, 4, 7, 8, 10},
           {1, 3, 5, 7, 8, 9, 10},
           {2, 3, 5, 12},
           {2, 4, 7, 8, 12},
           {6, 7, 11, 12},
           {1, 3, 4, 6, 8},
           {3, 5, 7, 10, 11, 12},
           {3, 4, 5, 9, 12}}}},
}};
// clang-format on

/// The houses of a list: rising numbers up to 12 and nothing behind the first unused place.
constexpr int CountOf(const Houses &houses) {
    int count = 0;
    for (const std::uint8_t house : houses) {
        if (house == 0) {
            break;
        }
        ++count;
    }
    for (std::size_t i = 1; i < houses.size(); ++i) {
        const bool isUsed = static_cast<int>(i) < count;
        if (isUsed ? houses[i] <= houses[i - 1] || houses[i] > 12 : houses[i] != 0) {
            return -1000;
        }
    }
    return count;
}

constexpr bool HasItsTotal(const PointsRule &rule) {
    int count = 0;
    for (const Houses &houses : rule.houses) {
        count += CountOf(houses);
    }
    return count == rule.total;
}

static_assert(std::ranges::all_of(rules, HasItsTotal), "a house too many or too few in the table of points");

constexpr std::size_t rasiCount = 12;
constexpr std::size_t planetColumns = 7;

constexpr std::string_view sanskritHeader =
    "Rasi         | Surya  |Chandra|Kuja |Budha  |Guru   |Sukra|Sani  |Lagna *|Rahu *|Total |Total With *";
constexpr std::string_view englishHeader =
    "Zodiac       | Sun    |Moon   |Mars |Mercury|Jupiter|Venus|Saturn|Asc   *|Rahu *|Total |Total With * ";

/// Points of one column: one entry a rasi, then their total.
using BinduCount = std::array<std::int16_t, rasiCount + 1>;

BinduCount CountBindus(const Positions &positions, const PointsRule &rule) {
    BinduCount count{};
    for (std::size_t i = 0; i < contributors.size(); ++i) {
        const Sign first(positions.*contributors[i]);
        for (const std::uint8_t house : rule.houses[i]) {
            if (house == 0) {
                break;
            }
            ++count[first.Plus(house - 1).Index()];
            ++count[rasiCount];
        }
    }
    return count;
}

} // namespace

MoonStar MoonStarOf(double moonLongitude, clsStar &stars) {
    stars.PlanetPosition = moonLongitude;
    stars.findstar();
    return {stars.StarName, stars.StarQuarter, stars.HouseNo};
}

TextGrid AshtakavargaGrid(const Positions &positions, const Names &names, Language language) {
    TextGrid grid;
    grid.header = language == Language::Sanskrit ? sanskritHeader : englishHeader;
    std::array<BinduCount, rules.size()> columns{};
    std::ranges::transform(rules, columns.begin(),
                           [&](const PointsRule &rule) { return CountBindus(positions, rule); });
    for (std::size_t i = 0; i <= rasiCount; ++i) {
        std::vector<std::string> row{i < rasiCount ? names.RasiNames.at(i) : "Total"};
        int planets = 0;
        int all = 0;
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const int points = columns[column][i];
            row.push_back(std::to_string(points));
            all += points;
            planets += column < planetColumns ? points : 0;
        }
        row.push_back(std::to_string(planets));
        row.push_back(std::to_string(all));
        grid.rows.push_back(std::move(row));
    }
    return grid;
}

} // namespace kelvaro
