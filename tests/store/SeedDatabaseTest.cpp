#include "store/masters/PlaceLists.h"
#include "tests/store/StoreFixture.h"

#include <map>
#include <utility>

namespace kelvaro::store {
namespace {

class SeedDatabaseTest : public StoreTest {};

TEST_F(SeedDatabaseTest, HoldsEveryRow) {
    const std::pair<const char *, const char *> counts[] = {
        {"Country_Master", "246"},
        {"TimeZone", "375"},
        {"City_Master", "60398"},
        {"KaliyugaYearDetails", "60"},
        {"Preference", "1"},
        {"tempdasasandhi", "1"},
        {"ChartSave", "0"},
        {"GChartSave", "0"},
        {"PersonalDetails", "0"},
        {"tempBhukthi", "0"},
        {"KaliyugaYearDetails where Yearno between 1 and 60", "60"},
        {"chartsmaster", "4740"},
    };
    for (const auto &[rows, count] : counts) {
        EXPECT_EQ(First(std::string("select count(*) from ") + rows), count) << rows;
    }
    EXPECT_EQ(First("pragma user_version"), "1");
    EXPECT_EQ(First("pragma integrity_check"), "ok");
}

TEST_F(SeedDatabaseTest, StandsOnTheFirstPreferences) {
    EXPECT_EQ(First("select PreID || Ayanamsa || Bhava || DayInYear || ChartStyle || PreferLanguage || "
                    "CustomYear || CustomProgress from Preference"),
              "1LahiriEqual365.25SouthEnglish0.00.0");
}

TEST_F(SeedDatabaseTest, CountriesStandInTheOrderOfTheirNumbers) {
    int number = 0;
    for (const ListItem &country : PlaceLists(connection_).Countries()) {
        EXPECT_EQ(country.key, ++number);
    }
}

TEST_F(SeedDatabaseTest, BandsOfEveryChartCoverEveryRasi) {
    std::map<std::pair<std::string, int>, double> reached;
    Recordset rows;
    rows.Open("select * from chartsmaster order by chartname, RasiHouse, startDegree", connection_);
    for (; !rows.IsEndOfFile(); rows.MoveNext()) {
        double &degree = reached[{rows.Text("chartname"), rows.Integer("RasiHouse")}];
        EXPECT_EQ(rows.Number("startDegree"), degree) << rows.Text("chartname");
        degree = rows.Number("EndDegree");
    }
    EXPECT_EQ(reached.size(), 20U * 12U);
    for (const auto &[chartAndRasi, degree] : reached) {
        EXPECT_EQ(degree, 30.0) << chartAndRasi.first << chartAndRasi.second;
    }
}

} // namespace
} // namespace kelvaro::store
