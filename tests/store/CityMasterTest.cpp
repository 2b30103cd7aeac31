#include "store/masters/CityMaster.h"

#include "tests/store/MasterSteps.h"
#include "tests/store/StoreFixture.h"

namespace kelvaro::store {
namespace {

class CityMasterTest : public StoreTest {
protected:
    static CityFields Fields(std::int32_t countryId, std::int32_t cityId = 0) {
        return {countryId, cityId, " Upper Hill Town ", "08", "59", "S", "180", "0", "W"};
    }

    std::string RowOf(const std::string &name) {
        return First("select CityName || '/' || CountryID || '/' || LatitudeDegree || Latitude_NS || "
                     "LatitudeMinute || '/' || LongitudeDegree || Longitude_EW || LongitudeMinute from "
                     "City_Master where CityName = '" +
                     name + "'");
    }

    std::string Count() { return First("select count(*) from City_Master"); }

    CityMaster master_{connection_};
};

TEST_F(CityMasterTest, AddTestsComeInTheirOrder) {
    CityFields fields{0, 0, "", "", "", "", "", "", ""};
    Notice notice = master_.Add(fields).notice;
    EXPECT_EQ(notice.text + notice.focus, "Select Country cbAddCountry");
    fields.countryId = 101;
    ExpectSteps(fields,
                {
                    {"Enter City ", "txtAddCity", &CityFields::city, " hyderabad (a.p) "},
                    {"Enter Lat Deg", "txtAddLatDeg", &CityFields::latDeg, "x"},
                    {"Enter Lat Min", "txtAddLAtMin", &CityFields::latMin, "x"},
                    {"Add Lat Zone", "cbAddNS", &CityFields::latNS, "N"},
                    {"Enter Lon Deg", "txtAddLonDeg", &CityFields::lonDeg, "x"},
                    {"Enter Lon Min", "txtAddLonMin", &CityFields::lonMin, "x"},
                    {"Add Lon Zone", "cbAddEW", &CityFields::lonEW, "E"},
                    {"Enter Number ", "txtAddLatDeg", &CityFields::latDeg, "90"},
                    {"Enter Number ", "txtAddLAtMin", &CityFields::latMin, "60"},
                    {"Enter Number ", "txtAddLonDeg", &CityFields::lonDeg, "181"},
                    {"Enter Number ", "txtAddLonMin", &CityFields::lonMin, "60"},
                    {"City Details Already Exists", "txtAddCity", &CityFields::city, "Upper Hill Town"},
                    {"Minutes run from 0 to 59.", "txtAddLAtMin", &CityFields::latMin, "1"},
                    {"Latitude runs from 0 to 90 degrees.", "txtAddLatDeg", &CityFields::latMin, "0"},
                    {"Minutes run from 0 to 59.", "txtAddLonMin", &CityFields::lonMin, "59"},
                    {"Longitude runs from 0 to 180 degrees.", "txtAddLonDeg", &CityFields::lonDeg, "-1"},
                    {"Longitude runs from 0 to 180 degrees.", "txtAddLonDeg", &CityFields::lonDeg, "179"},
                },
                [&] { return master_.Add(fields); });
    EXPECT_TRUE(master_.Add(fields).isStored);
}

TEST_F(CityMasterTest, AddsToItsCountry) {
    EXPECT_EQ(master_.Add(Fields(3)).notice.text, "City Details Saved");
    EXPECT_EQ(RowOf("Upper Hill Town"), "Upper Hill Town/3/8.0S59.0/180.0W0.0");
    EXPECT_EQ(master_.Add(Fields(3)).notice.text, "City Details Already Exists");
    EXPECT_EQ(master_.Add(Fields(4)).notice.text, "City Details Saved");
    EXPECT_EQ(First("select count(*) from City_Master where CityName = 'Upper Hill Town'"), "2");
    const MasterRows list = master_.Cities(3);
    const auto row = CityMaster::Find(list.rows, "upper hill t").row;
    ASSERT_TRUE(row);
    EXPECT_EQ(list.rows[*row],
              (std::vector<std::string>{"Upper Hill Town", "8", "S", "59", "180", "W", "0"}));
    EXPECT_EQ(list.items[*row].text, "Upper Hill Town");
}

TEST_F(CityMasterTest, UpdateTestsComeInTheirOrder) {
    CityFields fields{0, 0, "", "", "", "", "", "", ""};
    Notice notice = master_.Update(fields).notice;
    EXPECT_EQ(notice.text + notice.focus, "Select Country cbEditCountry");
    fields.countryId = 1;
    notice = master_.Update(fields).notice;
    EXPECT_EQ(notice.text + notice.focus, "Select CItycbEditCity");
    fields.cityId = 1;
    ExpectSteps(fields,
                {
                    // The latitude degree stays empty: it is not asked for here.
                    {"Enter City ", "txtEditCity", &CityFields::city, "Adraskan"},
                    {"Enter Lat Min", "txtEditLatMIn", &CityFields::latMin, "x"},
                    {"Add Lat Zone", "cbEditNS", &CityFields::latNS, "S"},
                    {"Enter Lon Deg", "txtEditLonDeg", &CityFields::lonDeg, "x"},
                    {"Enter Lon Min", "txtEditLonMin", &CityFields::lonMin, "x"},
                    {"Add Lon Zone", "cbEditEW", &CityFields::lonEW, "W"},
                    {"Enter Number ", "txtEditLatDeg", &CityFields::latDeg, "95"},
                    {"Enter Number ", "txtEditLatMIn", &CityFields::latMin, "7"},
                    {"Enter Number ", "txtEditLonDeg", &CityFields::lonDeg, "8"},
                    {"Enter Number ", "txtEditLonMin", &CityFields::lonMin, "60"},
                    {"Latitude runs from 0 to 90 degrees.", "txtEditLatDeg", &CityFields::latDeg, "6"},
                    {"Minutes run from 0 to 59.", "txtEditLonMin", &CityFields::lonMin, "9"},
                },
                [&] { return master_.Update(fields); });
    fields.city = "L'Aquila East"; // no statement holds the text, so a quote does no harm here
    EXPECT_EQ(master_.Update(fields).notice.text, "Successfully Updated");
    EXPECT_EQ(RowOf("L''Aquila East"), "L'Aquila East/1/6.0S7.0/8.0W9.0");
    fields.cityId = 999999;
    EXPECT_THROW(master_.Update(fields), StoreError);
}

TEST_F(CityMasterTest, ShowsTheFirstCityOfThatNameOfAnyCountry) {
    master_.Add({3, 0, "Hyderabad (A.P)", "1", "2", "S", "3", "4", "W"});
    CityFields fields;
    fields.countryId = 3;
    master_.Show("Hyderabad (A.P)", fields);
    EXPECT_EQ(fields, (CityFields{3, 0, "Hyderabad (A.P)", "17", "20", "N", "78", "30", "E"}));
}

TEST_F(CityMasterTest, AQuoteIsAnErrorAndNoStatement) {
    const std::string before = Count();
    CityFields fields = Fields(3);
    for (const char *name : {"L'Aquila", "x',3,1,'N',1,1,'E',1);delete from City_Master;--"}) {
        fields.city = name;
        EXPECT_THROW(master_.Add(fields), StoreError) << name;
        EXPECT_THROW(master_.Show(name, fields), StoreError) << name;
        EXPECT_EQ(fields.city, name);
    }
    EXPECT_EQ(Count(), before);
}

TEST_F(CityMasterTest, FindsTheFirstRowThatBeginsSo) {
    const GridRows rows{{"Agra"}, {"Ahmedabad"}, {"Ahmednagar"}};
    EXPECT_EQ(CityMaster::Find(rows, " AHMED ").row, 1U);
    EXPECT_EQ(CityMaster::Find(rows, "").notice->text, "Enter City Name to Search");
    EXPECT_EQ(CityMaster::Find(rows, "gra").notice->text, "No matches found for the City Name entered");
    EXPECT_FALSE(CityMaster::Find(rows, "Agrab").row);
}

} // namespace
} // namespace kelvaro::store
