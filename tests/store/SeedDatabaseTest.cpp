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
    const struct {
        const char *rows, *count;
    } cases[] = {
        {"Country_Master", "246"},
        {"TimeZone", "375"},
        {"City_Master", "60398"},
        {"City_Master where CountryID = (select CountryID from Country_Master where CountryName = 'India')",
         "7248"},
        {"KaliyugaYearDetails where Yearno between 1 and 60", "60"},
        {"KaliyugaYearDetails", "60"},
        {"Preference", "1"},
        {"tempdasasandhi", "1"},
        {"ChartSave", "0"},
        {"GChartSave", "0"},
        {"PersonalDetails", "0"},
        {"tempBhukthi", "0"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(First(std::string("select count(*) from ") + c.rows), c.count) << c.rows;
    }
    EXPECT_EQ(First("pragma user_version"), "1");
    EXPECT_EQ(First("pragma integrity_check"), "ok");
}

TEST_F(SeedDatabaseTest, StandsOnTheFirstPreferences) {
    const Recordset preference = Rows("select * from Preference where PreID = '1'");
    const std::pair<const char *, const char *> fields[] = {
        {"PreID", "1"},          {"Ayanamsa", "Lahiri"},        {"Bhava", "Equal"},  {"DayInYear", "365.25"},
        {"ChartStyle", "South"}, {"PreferLanguage", "English"}, {"CustomYear", "0"}, {"CustomProgress", "0"}};
    for (const auto &[field, text] : fields) {
        EXPECT_EQ(preference.Text(field), text) << field;
    }
}

TEST_F(SeedDatabaseTest, HasThePlaceOfTheSampleChart) {
    const Recordset city = Rows("Select * from City_Master where CityName = 'Hyderabad (A.P)'");
    EXPECT_EQ(city.Text("LatitudeDegree") + city.Text("Latitude_NS") + city.Text("LatitudeMinute"), "17N20");
    EXPECT_EQ(city.Text("LongitudeDegree") + city.Text("Longitude_EW") + city.Text("LongitudeMinute"),
              "78E30");

    const Recordset country = Rows("Select * from Country_Master where CountryName ='India'");
    EXPECT_EQ(country.Text("CountryID"), city.Text("CountryID"));
    const Recordset zone =
        Rows("select * from TimeZone where SNo = " + country.Text("TimeZoneID") + " order by Place");
    EXPECT_EQ(zone.Text("TimeDifference") + zone.Text("TimeZone"), "5.5E");
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

TEST_F(SeedDatabaseTest, LooksBodiesUpInTheirBands) {
    const struct {
        const char *chart, *degree, *rasi, *house;
    } cases[] = {
        {"HORA", "1.5", "3", "5"},
        {"hora", "15", "3", "4"},
        {"HORA", "14.9999999999999", "2", "4"},
        {"TRIMSHAMSHA", "7", "1", "11"},
        {"TRIMSHAMSHA", "29.9999999", "2", "8"},
        {"DREKKANA", "25", "12", "8"},
        {"NAVA-NAVAMSA", "1E-05", "1", "1"},
    };
    for (const auto &c : cases) {
        const std::string degree = c.degree;
        EXPECT_EQ(First(std::string("Select Housenumber from chartsmaster where  chartname ='") + c.chart +
                        "'" + "and  startDegree <= " + degree + " and EndDegree >" + degree +
                        " and RasiHouse =" + c.rasi),
                  c.house)
            << c.chart << " " << degree;
    }
}

TEST_F(SeedDatabaseTest, UnderstandsEveryStatementThatChangesIt) {
    const struct {
        const char *statement, *count, *rows;
    } cases[] = {
        {"insert into ChartSave (ChartName,Gender,Country,City,ChartDay,ChartMonth,ChartYear,ChartHour,"
         "ChartMinute,ChartSecond,LatitudeDegree,Latitude_NS,LatitudeMinute,LongitudeDegree,Longitude_EW,"
         "LongitudeMinute,TimeDifference) values  ('Velnesh~14-Jul-1965','Male','101','Hyderabad (A.P)',14,7,"
         "1965,14,15,0,17,'N',20,78,'E',30,155)",
         "ChartSave where Country = 101 and Sno = 1", "1"},
        {"delete from Chartsave where SNo =1", "ChartSave", "0"},
        {"insert into Country_Master([CountryName],[TimeZoneID]) values ('Atlantis','')",
         "Country_Master where CountryID = 247 and TimeZoneID = ''", "1"},
        {"update Country_Master set TimeZoneID='12,45' where CountryID=247",
         "Country_Master where TimeZoneID = '12,45'", "1"},
        {"insert into City_MAster([CityName],[CountryID],[LatitudeDegree],[Latitude_NS],[LatitudeMinute],"
         "[LongitudeDegree],[Longitude_EW],[LongitudeMinute]) values ('Poseidonis',247,35,'N',5,30,'W',59)",
         "City_Master where CityID = 60399", "1"},
        {"insert into TimeZone([Place],[TimeDifference],[TimeZone]) values ('Atlantis Time',5.75,'W')",
         "TimeZone where SNo = 376 and TimeDifference = 5.75", "1"},
        {"insert into PersonalDetails(Name,Address,Address2,City,Country,Zipcode,Phone,EMail) values  "
         "('A','B','C','D','E','500001','1','a@b')",
         "personalDetails where Zipcode = '500001'", "1"},
        {"delete * from PersonalDetails", "PersonalDetails", "0"},
        {"insert into tempBhukthi(UserID,DasaName,BhukthiName,BhukthiStart,BhukhiEnd,BhukthiAge) Values("
         "'0','Sun','Moon','14/Jul/1965','14/Jan/1966','0')",
         "tempBhukthi", "1"},
    };
    for (const auto &c : cases) {
        connection_.Execute(c.statement);
        EXPECT_EQ(First(std::string("select count(*) from ") + c.count), c.rows) << c.statement;
    }
}

TEST_F(SeedDatabaseTest, UnderstandsEveryStatementThatReadsIt) {
    const std::pair<const char *, const char *> cases[] = {
        {"Select * From KaliyugaYearDetails where Yearno = 34", "yearname"},
        {"Select ChartName From ChartSave", ""},
        {"Select Sno,ChartName From GChartSave order by ChartName ", ""},
        {"Select * From ChartSave where Sno = 1", ""},
        {"select * from Country_Master order by CountryName", "countryName"},
        {"Select * from City_Master where CountryId = 101 order by CityName", "cityName"},
        {"Select * From city_master where countryid = 101 Order by CityName", "CityID"},
        {"Select * from City_Master where CountryID = 101 and CityName= 'PUNE'", "longitude_ew"},
        {"Select * from City_Master where CityName ='pune'", "LatitudeMinute"},
        {"select * from Country_Master Where CountryID = 101", "TimeZoneID"},
        {"Select TimeZoneId  From Country_Master where CountryID = 101", "TimeZoneID"},
        {"Select * From TimeZone where Sno = 12", "Timedifference"},
        {"Select * from TimeZone where SNO =12", "TimeZone"},
        {"Select * from PersonalDetails", ""},
    };
    for (const auto &[statement, field] : cases) {
        const Recordset rows = Rows(statement);
        EXPECT_EQ(rows.IsEndOfFile(), std::string_view(field).empty()) << statement;
        if (!rows.IsEndOfFile()) {
            EXPECT_NE(rows.Text(field), "") << statement;
        }
    }
    EXPECT_EQ(First("Select Max(SNO) From timeZone "), "375");
}

} // namespace
} // namespace kelvaro::store
