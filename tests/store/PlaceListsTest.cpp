#include "store/masters/PlaceLists.h"

#include "tests/store/StoreFixture.h"

#include <strings.h>

#include <algorithm>

namespace kelvaro::store {
namespace {

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
    EXPECT_THROW(lists_.PlaceOfCity("L'Aquila"), StoreError);
}

} // namespace
} // namespace kelvaro::store
