#include "tests/store/StoreFixture.h"

#include <map>
#include <utility>

namespace kelvaro::store {
namespace {

class SeedDatabaseTest : public StoreTest {
protected:
    Recordset Rows(std::string_view statement) {
        Recordset rows;
        rows.Open(statement, connection_);
        return rows;
    }
};

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
        {"City_Master where CountryID = (select CountryID from Country_Master where CountryName = 'India')",
         "7248"},
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
    for (Recordset rows = Rows("Select * From country_master "); !rows.IsEndOfFile(); rows.MoveNext()) {
        EXPECT_EQ(rows.Integer("CountryID"), ++number);
    }
}

TEST_F(SeedDatabaseTest, BandsOfEveryChartCoverEveryRasi) {
    const std::map<std::string, int> bandsOfCharts = {
        {"hora", 2},        {"drekkana", 3},          {"chaturthamsha", 4},    {"panchamsha", 5},
        {"shashtamsha", 6}, {"sapthamsha", 7},        {"ashatamsha", 8},       {"navamsa", 9},
        {"dashamsha", 10},  {"ekadashamsha", 11},     {"dwadashamsha", 12},    {"shodashamsha", 16},
        {"vimshamsha", 20}, {"chaturvimshamsha", 24}, {"saptavimshamsha", 27}, {"trimshamsha", 5},
        {"khavedamsa", 40}, {"akshvedamsa", 45},      {"shastiamsa", 60},      {"nava-navamsa", 81}};
    std::map<std::pair<std::string, int>, std::pair<int, double>> reached;
    for (Recordset rows = Rows("select * from chartsmaster order by chartname, RasiHouse, startDegree");
         !rows.IsEndOfFile(); rows.MoveNext()) {
        auto &[count, degree] = reached[{rows.Text("chartname"), rows.Integer("RasiHouse")}];
        EXPECT_EQ(rows.Number("startDegree"), degree) << rows.Text("chartname");
        EXPECT_GE(rows.Integer("HouseNumber"), 1);
        EXPECT_LE(rows.Integer("HouseNumber"), 12);
        degree = rows.Number("EndDegree");
        ++count;
    }
    EXPECT_EQ(reached.size(), 20U * 12U);
    for (const auto &[chart, bands] : bandsOfCharts) {
        for (int rasi = 1; rasi <= 12; ++rasi) {
            EXPECT_EQ((reached[{chart, rasi}]), std::pair(bands, 30.0)) << chart << rasi;
        }
    }
}

} // namespace
} // namespace kelvaro::store
