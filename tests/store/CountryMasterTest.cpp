#include "store/masters/CountryMaster.h"

#include "tests/store/StoreFixture.h"

namespace kelvaro::store {
namespace {

class CountryMasterTest : public StoreTest {
protected:
    std::string Count() { return First("select count(*) from Country_Master"); }

    CountryMaster master_{connection_};
};

TEST_F(CountryMasterTest, AddsATrimmedNewNameWithoutZones) {
    struct Case {
        const char *name, *message;
        bool isStored;
    };
    for (const Case &each :
         {Case{"   ", "Enter a Country Name", false}, Case{" iNDIA ", "Country Name already Exists", false},
          Case{"  Aaland East ", "Details Saved", true},
          Case{"Aaland East", "Country Name already Exists", false}}) {
        const Outcome outcome = master_.Add(each.name);
        EXPECT_EQ(outcome.notice.text, each.message);
        EXPECT_EQ(outcome.isStored, each.isStored) << each.name;
        EXPECT_EQ(outcome.notice.focus, "txtAddName");
    }
    EXPECT_EQ(First("select TimeZoneID || '.' from Country_Master where CountryName = 'Aaland East'"), ".");
    EXPECT_EQ(master_.Countries().front().text, "Aaland East");
}

TEST_F(CountryMasterTest, RenamesTheChosenCountry) {
    const ListItem chosen{"Albania", 3};
    struct Case {
        ListItem chosen;
        const char *name, *message, *focus;
    };
    for (const Case &each : {Case{{}, " ", "Enter the New Name", "txtEdit"},
                             Case{chosen, " Albania ", "No Modifications Done", "txtEdit"},
                             // Another case of the same name is found in use: by itself.
                             Case{chosen, "ALBANIA", "Country Name already Exists", "txtEdit"},
                             Case{{}, "India", "Country Name already Exists", "txtEdit"},
                             Case{{}, "Illyria", "Select Country", "lstEditBox"},
                             Case{chosen, " Illyria ", "Successfully Updated", ""}}) {
        const Outcome outcome = master_.Rename(each.chosen, each.name);
        EXPECT_EQ(outcome.notice.text, each.message);
        EXPECT_EQ(outcome.notice.focus, each.focus);
    }
    EXPECT_EQ(First("select CountryName || TimeZoneID from Country_Master where CountryID = 3"),
              "Illyria73,69");
    EXPECT_THROW(master_.Rename({"Gone", 9999}, "Utopia"), StoreError);
}

TEST_F(CountryMasterTest, AQuoteIsAnErrorAndNoStatement) {
    const std::string before = Count();
    for (const char *name : {"Cote d'Ivoire", "x','');delete from Country_Master;--", "' or ''='"}) {
        EXPECT_THROW(master_.Add(name), StoreError) << name;
        EXPECT_THROW(master_.Rename({"Albania", 3}, name), StoreError) << name;
    }
    EXPECT_EQ(Count(), before);
    EXPECT_EQ(First("select CountryName from Country_Master where CountryID = 3"), "Albania");
}

TEST_F(CountryMasterTest, SearchSelectsTheFirstThatBeginsSo) {
    const std::vector<ListItem> countries{{"India", 1}, {"Indonesia", 2}, {"Iran", 3}};
    const auto rowOf = [&](const char *text) { return CountryMaster::Search(countries, text).row; };
    EXPECT_EQ(rowOf(" iNDO "), 1U);
    EXPECT_EQ(rowOf("in"), 0U);
    EXPECT_EQ(rowOf(""), 0U);
    EXPECT_FALSE(rowOf("Indiana"));
    EXPECT_EQ(CountryMaster::Search(countries, "ndia").notice->text, "No Such Country Exists");
    EXPECT_FALSE(CountryMaster::Search({}, " ").notice);
}

} // namespace
} // namespace kelvaro::store
