#include "store/masters/CountryMaster.h"

#include "tests/RuleOrder.h"
#include "tests/store/StoreFixture.h"

namespace kelvaro::store {
namespace {

class CountryMasterTest : public StoreTest {
protected:
    CountryMaster master_{connection_};
};

TEST_F(CountryMasterTest, AddsATrimmedNewNameWithoutZones) {
    EXPECT_EQ(Told(master_.Add("   ").notice), "Enter a Country Name@txtAddName");
    EXPECT_EQ(Told(master_.Add(" iNDIA ").notice), "Country Name already Exists@txtAddName");
    EXPECT_THROW(master_.Add("Cote d'Ivoire"), StoreError);
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

TEST_F(CountryMasterTest, SearchSelectsTheFirstThatBeginsSo) {
    const std::vector<ListItem> countries{{"India", 1}, {"Indonesia", 2}, {"Iran", 3}};
    const auto rowOf = [&](const char *text) { return CountryMaster::Search(countries, text).row; };
    EXPECT_EQ(rowOf(" iNDO "), 1U);
    EXPECT_EQ(rowOf("in"), 0U);
    EXPECT_EQ(rowOf(""), 0U);
    EXPECT_EQ(CountryMaster::Search(countries, "ndia").notice->text, "No Such Country Exists");
    EXPECT_FALSE(CountryMaster::Search({}, " ").notice);
}

} // namespace
} // namespace kelvaro::store
