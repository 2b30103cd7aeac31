#include "store/masters/CountryMaster.h"
#include "store/masters/PersonalDetails.h"
#include "store/masters/PlaceLists.h"
#include "tests/RuleOrder.h"
#include "tests/store/StoreFixture.h"

#include <strings.h>

#include <algorithm>

namespace kelvaro::store {
namespace {

class CountryMasterTest : public StoreTest {
protected:
    CountryMaster master_{connection_};
};

TEST_F(CountryMasterTest, AddsATrimmedNewNameWithoutZones) {
    EXPECT_EQ(Told(master_.Add("   ").notice), "Enter a Country Name@txtAddName");
    EXPECT_EQ(Told(master_.Add(" iNDIA ").notice), "Country Name already Exists@txtAddName");
    EXPECT_TRUE(RefusesQuote([&] { master_.Add("Cote d'Ivoire"); }));
    EXPECT_EQ(Told(master_.Add("  Aaland East ").notice), "Details Saved@txtAddName");
    EXPECT_EQ(First("select TimeZoneID || '.' from Country_Master where CountryName = 'Aaland East'"), ".");
    EXPECT_EQ(master_.Countries().front().text, "Aaland East");
    EXPECT_EQ(Told(master_.Add(std::string(256, 'x')).notice),
              "A name has at most 255 characters.@txtAddName");
    EXPECT_TRUE(master_.Add("Österreich").isStored);
    EXPECT_EQ(master_.Add("österREICH").notice.text, "Country Name already Exists");
    EXPECT_EQ(CountryMaster::Search(master_.Countries(), "öSTER").row, master_.Countries().size() - 1);
}

TEST_F(CountryMasterTest, RenamesTheChosenCountry) {
    const ListItem chosen{"Albania", 3};
    const std::string longName(256, 'x');
    struct Case {
        ListItem chosen;
        const char *name, *told;
    };
    for (const Case &each : {Case{{}, " ", "Enter the New Name@txtEdit"},
                             Case{chosen, " Albania ", "No Modifications Done@txtEdit"},
                             // Another case of the same name is found in use: by itself.
                             Case{chosen, "ALBANIA", "Country Name already Exists@txtEdit"},
                             Case{{}, "India", "Country Name already Exists@txtEdit"},
                             Case{{}, "Illyria", "Select Country@lstEditBox"},
                             Case{chosen, longName.c_str(), "A name has at most 255 characters.@txtEdit"},
                             Case{chosen, " Illyria ", "Successfully Updated@"}}) {
        EXPECT_EQ(Told(master_.Rename(each.chosen, each.name).notice), each.told);
    }
    EXPECT_EQ(First("select CountryName || TimeZoneID from Country_Master where CountryID = 3"),
              "Illyria73,69");
    EXPECT_THROW(master_.Rename({"Gone", 9999}, "Utopia"), StoreError);
}

TEST_F(StoreTest, LetterheadIsOneRowAndAFaultKeepsIt) {
    const PersonalDetails letterhead{"Asha Rao", "1 Hill Road", "Second Floor", "Pune",
                                     "India",    "411001",      "020 1",        "asha@example.org"};
    SavePersonalDetails({}, connection_);
    EXPECT_EQ(SavePersonalDetails(letterhead, connection_).text, "Details Saved");
    EXPECT_EQ(First("select count(*) || Address2 || Zipcode from PersonalDetails"), "1Second Floor411001");
    PersonalDetails tooLong = letterhead;
    tooLong.Zipcode.assign(256, '9');
    EXPECT_EQ(Told(SavePersonalDetails(tooLong, connection_)),
              "A line of the letterhead has at most 255 characters.@txtZip");
    PersonalDetails quoted = letterhead;
    quoted.EMail = "');delete from PersonalDetails;--";
    EXPECT_TRUE(RefusesQuote([&] { SavePersonalDetails(quoted, connection_); }));
    connection_.Execute("create trigger refusal before insert on PersonalDetails begin select "
                        "raise(abort, 'refused'); end");
    EXPECT_NE(ErrorOf([&] { SavePersonalDetails({}, connection_); }).find("refused"), std::string::npos);
    EXPECT_EQ(ReadPersonalDetails(connection_), letterhead);
    connection_.Execute("update PersonalDetails set City = replace(hex(zeroblob(500)), '00', char(10))");
    EXPECT_EQ(ReadPersonalDetails(connection_).City, std::string(254, ' ') + "…");
}

class PlaceListsTest : public StoreTest {
protected:
    PlaceLists lists_{connection_};
};

TEST_F(PlaceListsTest, CountriesAndZonesStandInTheirOwnOrder) {
    connection_.Execute("insert into TimeZone([Place],[TimeDifference],[TimeZone]) values ('B',5.5,'E'), "
                        "('A',11,'W'), ('C',05.75,'E')");
    connection_.Execute("insert into Country_Master([CountryName],[TimeZoneID]) values "
                        "('Aaland','378,376,377,99999')");
    const std::int32_t country = lists_.Countries().back().key;
    EXPECT_EQ(lists_.Countries()[100], (ListItem{"India", 101}));
    EXPECT_EQ(lists_.Countries().back(), (ListItem{"Aaland", country}));
    std::string texts;
    for (const Zone &zone : lists_.ZonesOf(country)) {
        texts += std::to_string(zone.number) + " " + zone.text + "\n";
    }
    EXPECT_EQ(texts, "378 C  (5.75 hrs E)\n376 B  (5.5 hrs E)\n377 A  (11 hrs W)\n");
    const Zone zone = lists_.ZoneNumbered(377);
    EXPECT_EQ(zone.hours, 11);
    EXPECT_EQ(zone.direction, "W");
    EXPECT_THROW(lists_.ZonesOf(9999), StoreError);
    EXPECT_THROW(lists_.ZoneNumbered(9999), StoreError);
}

TEST_F(PlaceListsTest, ABadRowIsLeftOutAndTold) {
    std::string told;
    connection_.OnRowsLeftOut([&told](const std::string &remark) { told = remark; });
    const std::size_t countries = lists_.Countries().size();
    const std::size_t cities = lists_.CitiesOf(3).size();
    EXPECT_EQ(told, "");
    connection_.Execute("update Country_Master set CountryID = 4611686018427387904 where CountryID = 5");
    EXPECT_EQ(lists_.Countries().size(), countries - 1);
    EXPECT_EQ(told, "Left out: 1 of the countries in the database cannot be read. Details: CountryID is "
                    "\"4611686018427387904\" in row 4611686018427387904.");
    EXPECT_EQ(CountryMaster(connection_).Countries().size(), countries - 1);
    connection_.Execute(
        "update City_Master set CityID = -CityID - 2147483649 where CountryID = 3 and CityName "
        "= 'Tirana'");
    EXPECT_EQ(lists_.CitiesOf(3).size(), cities - 1);
    EXPECT_TRUE(told.starts_with("Left out: 1 of the cities")) << told;
    connection_.Execute("update Country_Master set TimeZoneID = '73,, 69,1 or 1 = 1' where CountryID = 3");
    EXPECT_EQ(lists_.ZonesOf(3).size(), 2U);
    EXPECT_EQ(told, "Left out: 2 of the time zones in the database cannot be read. Details: Albania lists "
                    "\"73,, 69,1 or 1 = 1\".");
    connection_.Execute("update TimeZone set TimeDifference = null where SNo = 69");
    EXPECT_EQ(lists_.ZonesOf(3).size(), 1U);
}

TEST_F(PlaceListsTest, CitiesStandByNameAndArePlacedByNameAlone) {
    const std::vector<ListItem> cities = lists_.CitiesOf(101);
    ASSERT_EQ(cities.size(), 7248U);
    const auto comesBefore = [](const ListItem &left, const ListItem &right) {
        return strcasecmp(left.text.c_str(), right.text.c_str()) < 0;
    };
    EXPECT_TRUE(std::ranges::is_sorted(cities, comesBefore));
    const auto place = lists_.PlaceOfCity("hyderabad (a.p)");
    ASSERT_TRUE(place);
    EXPECT_EQ(place->latDeg + place->latMin / 100, 17.20);
    EXPECT_EQ(place->lonDeg + place->lonMin / 100, 78.30);
    EXPECT_EQ(place->latNS + place->lonEW, "NE");
    EXPECT_FALSE(lists_.PlaceOfCity("No such place"));
    EXPECT_TRUE(RefusesQuote([&] { lists_.PlaceOfCity("L'Aquila"); }));
}

} // namespace
} // namespace kelvaro::store
