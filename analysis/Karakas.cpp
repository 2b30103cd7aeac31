#include "analysis/Karakas.h"

#include "presentation/AngleText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

namespace {

constexpr std::array<std::string_view, 7> karakas{"Atma",   "Amatya", "Bhratri", "Matri",
                                                  "Puttra", "Gnati",  "Dara"};

constexpr std::size_t firstPlanetRow = 1; // after the Lagna
constexpr std::size_t longitudeColumn = 1;
constexpr std::size_t karakaColumn = 8;

/// Sun to Saturn: Rahu and Ketu take no part.
constexpr std::span<const BodyFields> rankedBodies{bodyFields.data() + 1, karakas.size()};

std::vector<std::vector<std::string>> DegreeTexts(const Positions &positions) {
    std::vector<std::vector<std::string>> rows;
    for (const BodyFields &fields : rankedBodies) {
        rows.push_back({FormatDegrees(DegreesInRasi(positions.*fields.longitude))});
    }
    return rows;
}

} // namespace

void RankKarakas(const Positions &positions, PlanetPositionsForm &form) {
    std::vector<std::vector<std::string>> &ranking = form.MSFlexGridSort.rows;
    ranking = DegreeTexts(positions);
    std::sort(ranking.begin(), ranking.end(), std::greater<>());
    for (std::size_t rank = 0; rank < karakas.size(); ++rank) {
        for (std::size_t planet = 0; planet < karakas.size(); ++planet) {
            std::vector<std::string> &row = form.mshNirayana.rows.at(firstPlanetRow + planet);
            if (row.at(longitudeColumn) == ranking.at(rank).front()) {
                row.at(karakaColumn) = karakas.at(rank);
            }
        }
    }
}

} // namespace kelvaro
