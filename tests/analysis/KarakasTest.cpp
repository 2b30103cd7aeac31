#include "analysis/Karakas.h"

#include "presentation/AngleText.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace kelvaro {
namespace {

struct KarakaCase {
    const char *what;
    std::array<double, 7> longitudes; ///< Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn
    std::array<const char *, 7> karakas;
};

const std::array<KarakaCase, 3> cases{{
    // 9.6.0, 9.30.0, 5.30.0, 25.0.0, 12.30.0, 10.15.0, 1.0.0.
    {"by characters and not by size",
     {5.5, 42.5, 99.5, 25, 129.1, 331, 310.25},
     {"Bhratri", "Puttra", "Amatya", "Matri", "Atma", "Dara", "Gnati"}},
    // Sun and Saturn 9.0.0 rank first and second, Moon, Mars and Jupiter 3.0.0 third to fifth.
    {"the last rank among equals",
     {9, 3, 33, 2, 333, 1, 279},
     {"Amatya", "Puttra", "Puttra", "Gnati", "Puttra", "Dara", "Amatya"}},
    // 20.0.0 and 20.0.1 differ; Mars and Venus, less than a second apart, share 8.0.0.
    {"texts decide equality",
     {20, 20 + 1 / 3600.0, 8, 7, 6, 8 + 1e-5, 5},
     {"Dara", "Gnati", "Amatya", "Bhratri", "Matri", "Amatya", "Puttra"}},
}};

TEST(Karakas, RankByText) {
    for (const KarakaCase &expected : cases) {
        SCOPED_TRACE(expected.what);
        Positions positions;
        PlanetPositionsForm form;
        form.MSFlexGridSort.rows.assign(9, {"stale"});
        form.mshNirayana.rows.assign(10, std::vector<std::string>(10));
        for (std::size_t i = 0; i < 7; ++i) {
            positions.*bodyFields.at(i + 1).longitude = expected.longitudes.at(i);
            form.mshNirayana.rows.at(i + 1).at(1) = FormatDegrees(DegreesInRasi(expected.longitudes.at(i)));
        }
        // Rows that take no part, with the text of a planet.
        form.mshNirayana.rows.at(8).at(1) = form.mshNirayana.rows.at(1).at(1);
        form.mshNirayana.rows.at(0).at(1) = form.mshNirayana.rows.at(1).at(1);

        RankKarakas(positions, form);
        EXPECT_EQ(form.MSFlexGridSort.rows.size(), 7U);
        for (std::size_t i = 0; i < 7; ++i) {
            EXPECT_EQ(form.mshNirayana.rows.at(i + 1).at(8), expected.karakas.at(i)) << "planet " << i;
        }
        EXPECT_EQ(form.mshNirayana.rows.at(0).at(8), "");
        EXPECT_EQ(form.mshNirayana.rows.at(8).at(8), "");
    }
}

} // namespace
} // namespace kelvaro
