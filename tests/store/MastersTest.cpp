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
}

TEST_F(CountryMasterTest, RenamesTheChosenCountry) {
    const ListItem chosen{"Albania", 3};
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
    PersonalDetails quoted = letterhead;
    quoted.EMail = "');delete from PersonalDetails;--";
    EXPECT_TRUE(RefusesQuote([&] { SavePersonalDetails(quoted, connection_); }));
    connection_.Execute("create trigger refusal before insert on PersonalDetails begin select "
                        "raise(abort, 'refused'); end");
    EXPECT_EQ(ErrorOf([&] { SavePersonalDetails({}, connection_); }), "refused");
    EXPECT_EQ(ReadPersonalDetails(connection_), letterhead);
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
