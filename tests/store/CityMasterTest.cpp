#include "store/masters/CityMaster.h"

#include "runtime/Paths.h"
#include "runtime/Texts.h"
#include "store/masters/PlaceLists.h"
#include "tests/RuleOrder.h"
#include "tests/store/StoreFixture.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

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
            {"A name has at most 255 characters.@txtAddCity", &CityFields::city, {std::string(256, 'x')}},
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
            {"A name has at most 255 characters.@txtEditCity", &CityFields::city, {std::string(256, 'x')}},
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
    master_.Show({"Hyderabad (A.P)", 1}, fields);
    const CityFields hyderabad{3, 0, "Hyderabad (A.P)", "17", "20", "N", "78", "30", "E"};
    EXPECT_EQ(fields, hyderabad);
    EXPECT_TRUE(RefusesQuote([&] { master_.Show({"L'Aquila", 1}, fields); }));
    EXPECT_EQ(fields, hyderabad);
    fields.city = "L'Aquila";
    EXPECT_TRUE(RefusesQuote([&] { master_.Add(fields); }));
}

TEST_F(CityMasterTest, NamesHaveNoCaseInAnyScript) {
    const auto add = [this](const char *name) {
        CityFields fields = Fields(3);
        fields.city = name;
        return master_.Add(fields).notice.text;
    };
    EXPECT_EQ(add("Öz Town"), "City Details Saved");
    EXPECT_EQ(add("ÖZ TOWN"), "City Details Already Exists");
    EXPECT_EQ(add("öa Town"), "City Details Saved");
    const std::vector<ListItem> cities = PlaceLists(connection_).CitiesOf(3);
    EXPECT_EQ((cities.end() - 2)->text + cities.back().text, "öa TownÖz Town");
    EXPECT_TRUE(PlaceLists(connection_).PlaceOfCity("öZ tOwN"));
    CityFields fields;
    master_.Show({"öz town", 1}, fields);
    EXPECT_EQ(fields.city, "Öz Town");
    EXPECT_TRUE(CityMaster::Find(master_.Cities(3).rows, "öZ").row);

    // Other programs do not know our way to compare, and find the file and its indices sound.
    const SQLite::Database other(TextOfPath(file_));
    SQLite::Statement sound(other, "pragma integrity_check");
    sound.executeStep();
    EXPECT_EQ(sound.getColumn(0).getString(), "ok");
}

TEST_F(CityMasterTest, ANameThatIsTooLongCanBeSeenAndMended) {
    connection_.Execute("update City_Master set CityName = '000' || hex(zeroblob(500000)) where CityID = 5");
    const std::int32_t country = std::stoi(First("select CountryID from City_Master where CityID = 5"));
    const MasterRows list = master_.Cities(country);
    const auto row = CityMaster::Find(list.rows, "00000").row;
    ASSERT_TRUE(row);
    EXPECT_EQ(CharactersIn(list.rows[*row].front()), longestName);
    CityFields fields;
    master_.Show(list.items[*row], fields);
    EXPECT_EQ(fields.city, list.items[*row].text);
    fields.countryId = country;
    fields.cityId = 5;
    fields.city = "Mended";
    EXPECT_TRUE(master_.Update(fields).isStored);
    EXPECT_EQ(First("select CityName from City_Master where CityID = 5"), "Mended");
}

} // namespace
} // namespace kelvaro::store
