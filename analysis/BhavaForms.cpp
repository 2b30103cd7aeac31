#include "analysis/BhavaForms.h"

#include "analysis/LongitudeCells.h"
#include "presentation/AngleText.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kelvaro {

namespace {

constexpr std::size_t houses = 12;

constexpr std::string_view limitsHeading = "House  |  Start Bhava | Mid Bhava    | Sandhi          |"
                                           " Planets                                                       ";
constexpr std::string_view middlesHeading = "House         |Longitude |   Rasi       | Rasi Lord |"
                                            "  Star             | Pada |Star Lord       |Sub  Lord    ";

TextGrid LimitsGrid(const Houses &found) {
    TextGrid grid;
    grid.header = limitsHeading;
    for (std::size_t k = 0; k < houses; ++k) {
        grid.rows.push_back({std::to_string(k + 1), FormatDegrees(found.BhavaStart.at(k)),
                             FormatDegrees(found.BhavaMid.at(k)), FormatDegrees(found.BhavaSandhi.at(k)),
                             found.BhavaPlanets.at(k)});
    }
    return grid;
}

TextGrid MiddlesGrid(const Houses &found, const Names &names, clsStar &star) {
    TextGrid grid;
    grid.header = middlesHeading;
    for (std::size_t k = 0; k < houses; ++k) {
        const double middle = found.BhavaMid.at(k);
        std::vector<std::string> row = LongitudeCells(names, star, middle);
        row.insert(row.begin(), {std::to_string(k + 1), FormatDegrees(middle)});
        grid.rows.push_back(std::move(row));
    }
    return grid;
}

} // namespace

BhavaFeaturesForm BhavaTables(const Houses &found, const Names &names, clsStar &star) {
    return {LimitsGrid(found), MiddlesGrid(found, names, star)};
}

} // namespace kelvaro
