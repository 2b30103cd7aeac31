#include "store/masters/CityMaster.h"

#include "tests/RuleOrder.h"
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

    CityMaster master_{connection_};
};

TEST_F(CityMasterTest, AddRulesComeInTheirOrder) {
    CityFields fields = ExpectOrder<CityFields>(
        Fields(101),
        {
            {"Enter City @txtAddCity", &CityFields::city, {"", " "}},
            {"Enter Lat Deg@txtAddLatDeg", &CityFields::latDeg, {""}},
            {"Enter Lat Min@txtAddLAtMin", &CityFields::latMin, {""}},
            {"Add Lat Zone@cbAddNS", &CityFields::latNS, {""}},
            {"Enter Lon Deg@txtAddLonDeg", &CityFields::lonDeg, {""}},
            {"Enter Lon Min@txtAddLonMin", &CityFields::lonMin, {""}},
            {"Add Lon Zone@cbAddEW", &CityFields::lonEW, {""}},
            {"Enter Number @txtAddLatDeg", &CityFields::latDeg, {"x"}},
            {"Enter Number @txtAddLAtMin", &CityFields::latMin, {"x"}},
            {"Enter Number @txtAddLonDeg", &CityFields::lonDeg, {"x"}},
            {"Enter Number @txtAddLonMin", &CityFields::lonMin, {"x"}},
            {"City Details Already Exists@txtAddCity", &CityFields::city, {" hyderabad (a.p) "}},
            {"Minutes run from 0 to 59.@txtAddLAtMin", &CityFields::latMin, {"60", "-1"}},
            {"Latitude runs from 0 to 90 degrees.@txtAddLatDeg", &CityFields::latDeg, {"90", "-1"}},
            {"Minutes run from 0 to 59.@txtAddLonMin", &CityFields::lonMin, {"60", "-1"}},
            {"Longitude runs from 0 to 180 degrees.@txtAddLonDeg", &CityFields::lonDeg, {"181", "-1"}},
        },
        [this](const CityFields &broken) { return Told(master_.Add(broken).notice); });
    fields.countryId = 0;
    EXPECT_EQ(Told(master_.Add(fields).notice), "Select Country @cbAddCountry");
}

TEST_F(CityMasterTest, AddsToItsCountry) {
    EXPECT_EQ(master_.Add(Fields(3)).notice.text, "City Details Saved");
    EXPECT_EQ(RowOf("Upper Hill Town"), "Upper Hill Town/3/8.0S59.0/180.0W0.0");
    EXPECT_EQ(master_.Add(Fields(3)).notice.text, "City Details Already Exists");
    EXPECT_EQ(master_.Add(Fields(4)).notice.text, "City Details Saved");
    const MasterRows list = master_.Cities(3);
    const auto row = CityMaster::Find(list.rows, "upper hill t").row;
    ASSERT_TRUE(row);
    EXPECT_EQ(list.rows[*row],
              (std::vector<std::string>{"Upper Hill Town", "8", "S", "59", "180", "W", "0"}));
    EXPECT_EQ(list.items[*row].text, "Upper Hill Town");
}

TEST_F(CityMasterTest, UpdateRulesComeInTheirOrder) {
    CityFields broken = ExpectOrder<CityFields>(
        Fields(1, 1),
        {
            // The latitude degree is not asked for here.
            {"Enter City @txtEditCity", &CityFields::city, {""}},
            {"Enter Lat Min@txtEditLatMIn", &CityFields::latMin, {""}},
            {"Add Lat Zone@cbEditNS", &CityFields::latNS, {""}},
            {"Enter Lon Deg@txtEditLonDeg", &CityFields::lonDeg, {""}},
            {"Enter Lon Min@txtEditLonMin", &CityFields::lonMin, {""}},
            {"Add Lon Zone@cbEditEW", &CityFields::lonEW, {""}},
            {"Enter Number @txtEditLatDeg", &CityFields::latDeg, {"x", ""}},
            {"Enter Number @txtEditLatMIn", &CityFields::latMin, {"x"}},
            {"Enter Number @txtEditLonDeg", &CityFields::lonDeg, {"x"}},
            {"Enter Number @txtEditLonMin", &CityFields::lonMin, {"x"}},
            {"Minutes run from 0 to 59.@txtEditLatMIn", &CityFields::latMin, {"60"}},
            {"Latitude runs from 0 to 90 degrees.@txtEditLatDeg", &CityFields::latDeg, {"90"}},
            {"Minutes run from 0 to 59.@txtEditLonMin", &CityFields::lonMin, {"60"}},
            {"Longitude runs from 0 to 180 degrees.@txtEditLonDeg", &CityFields::lonDeg, {"181"}},
        },
        [this](const CityFields &fields) { return Told(master_.Update(fields).notice); });
    broken.cityId = 0;
    EXPECT_EQ(Told(master_.Update(broken).notice), "Select CIty@cbEditCity");
    broken.countryId = 0;
    EXPECT_EQ(Told(master_.Update(broken).notice), "Select Country @cbEditCountry");

    CityFields fields{1, 1, "", "6", "7", "S", "8", "9", "W"};
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
    const CityFields hyderabad{3, 0, "Hyderabad (A.P)", "17", "20", "N", "78", "30", "E"};
    EXPECT_EQ(fields, hyderabad);
    EXPECT_TRUE(RefusesQuote([&] { master_.Show("L'Aquila", fields); }));
    EXPECT_EQ(fields, hyderabad);
    fields.city = "L'Aquila";
    EXPECT_TRUE(RefusesQuote([&] { master_.Add(fields); }));
}

} // namespace
} // namespace kelvaro::store
