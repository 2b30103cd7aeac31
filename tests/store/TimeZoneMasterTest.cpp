#include "store/masters/TimeZoneMaster.h"

#include "tests/RuleOrder.h"
#include "tests/store/StoreFixture.h"

namespace kelvaro::store {
namespace {

class TimeZoneMasterTest : public StoreTest {
protected:
    static ZoneFields Fields(std::int32_t countryId, std::int32_t zoneId = 0) {
        return {countryId, zoneId, " Hill Time ", "05", "30", "W"};
    }

    /// What one of the operations said last before it stored; the number of zones was then still that before.
    TimeZoneMaster::Teller Keep() {
        return [this](const Notice &notice) {
            announced_ = notice.text;
            zonesAtAnnouncement_ = Count();
        };
    }

    std::string Count() { return First("select count(*) from TimeZone"); }
    std::string ListOf(int country) {
        return First("select TimeZoneID from Country_Master where CountryID = " + std::to_string(country));
    }
    std::string Newest() {
        return First("select Place || '/' || TimeDifference || TimeZone from TimeZone order by SNo desc");
    }

    TimeZoneMaster master_{connection_};
    std::string announced_, zonesAtAnnouncement_;
};

TEST_F(TimeZoneMasterTest, RulesComeInTheirOrder) {
    ZoneFields fields = ExpectOrder<ZoneFields>(
        Fields(101),
        {
            {"Enter City @txtAddCity", &ZoneFields::place, {"", " "}},
            {"Enter Time Hours@txtAddLatDeg", &ZoneFields::hours, {""}},
            {"Enter Time Min@txtAddLAtMin", &ZoneFields::minutes, {""}},
            {"Enter Zone@cbAddEW", &ZoneFields::direction, {""}},
            {"Enter Number @txtAddLatDeg", &ZoneFields::hours, {"x"}},
            {"Enter Number @txtAddLAtMin", &ZoneFields::minutes, {"x"}},
            {"Time zones run from 0 to 14 hours.@txtAddLatDeg", &ZoneFields::hours, {"15", "-1"}},
            {"Minutes run from 0 to 59.@txtAddLAtMin", &ZoneFields::minutes, {"60", "-1"}},
            {"A name has at most 255 characters.@txtAddCity", &ZoneFields::place, {std::string(256, 'x')}},
        },
        [this](const ZoneFields &broken) { return Told(master_.Add(broken, Keep()).notice); });
    fields.countryId = 0;
    EXPECT_EQ(Told(master_.Add(fields, Keep()).notice), "Select Country @cbAddCountry");

    fields = ExpectOrder<ZoneFields>(
        Fields(101, 1),
        {
            {"Enter Time Zone @txtEditCity", &ZoneFields::place, {""}},
            {"Enter Hours@txtEditLatDeg", &ZoneFields::hours, {""}},
            {"Enter Minutes@txtEditLatMIn", &ZoneFields::minutes, {""}},
            {"Add Zone@cbEditEW", &ZoneFields::direction, {""}},
            {"Enter Number @txtEditLatDeg", &ZoneFields::hours, {"x"}},
            {"Enter Number @txtEditLatMIn", &ZoneFields::minutes, {"x"}},
            {"Time zones run from 0 to 14 hours.@txtEditLatDeg", &ZoneFields::hours, {"15"}},
            // Nine hours more than the hours say.
            {"Time zones run from 0 to 14 hours.@txtEditLatMIn", &ZoneFields::minutes, {"546", "-1"}},
            {"A name has at most 255 characters.@txtEditCity", &ZoneFields::place, {std::string(256, 'x')}},
        },
        [this](const ZoneFields &broken) { return Told(master_.Update(broken, Keep()).notice); });
    fields.zoneId = 0;
    EXPECT_EQ(Told(master_.Update(fields, Keep()).notice), "Select Time Zone@cbEditCity");
    fields.countryId = 0;
    EXPECT_EQ(Told(master_.Update(fields, Keep()).notice), "Select Country @cbEditCountry");
    EXPECT_EQ(Told(master_.Add({101, 0, "Hill Time", "14", "1", "E"}, Keep()).notice),
              "Time zones run from 0 to 14 hours.@txtAddLAtMin");
    EXPECT_EQ(announced_, "");
    EXPECT_TRUE(master_.Update({101, 1, "Hill Time", "5", "75", "E"}, Keep()).isStored);
    EXPECT_EQ(First("select TimeDifference from TimeZone where SNo = 1"), "6.25") << "5 hours 75 minutes";
}

TEST_F(TimeZoneMasterTest, AddAnnouncesThenStoresZoneAndList) {
    const std::string before = Count();
    const std::string number = std::to_string(std::stoi(First("select max(SNo) from TimeZone")) + 1);
    EXPECT_EQ(master_.Add(Fields(3), Keep()).notice.text, "Details successfully saved");
    EXPECT_EQ(announced_, "Your Entered Time  05  hours 30  Minutes is saved as  5.5 hours");
    EXPECT_EQ(zonesAtAnnouncement_, before);
    EXPECT_EQ(Newest(), "Hill Time/5.5W");
    EXPECT_EQ(ListOf(3), "73,69," + number);

    connection_.Execute("update Country_Master set TimeZoneID = '' where CountryID = 4");
    master_.Add({4, 0, "Hill Time", "0", "40", "W"}, Keep());
    EXPECT_EQ(Newest(), "Hill Time/0.67W");
    EXPECT_EQ(ListOf(4), std::to_string(std::stoi(number) + 1));
    const MasterRows list = master_.Zones(3);
    EXPECT_EQ(list.rows.back(), (std::vector<std::string>{"Hill Time", number, "5.5", "W"}));
    EXPECT_EQ(list.items.back(), (ListItem{"Hill Time", std::stoi(number)}));
}

TEST_F(TimeZoneMasterTest, AnUneditedZoneIsStoredAsItShows) {
    master_.Add(Fields(3), Keep());
    const std::int32_t number = master_.Zones(3).items.back().key;
    ZoneFields fields;
    fields.countryId = 3;
    fields.zoneId = number;
    master_.Show(number, fields);
    EXPECT_EQ(fields, (ZoneFields{3, number, "Hill Time", "5", "5", "W"}));
    EXPECT_EQ(master_.Update(fields, Keep()).notice.text, "Successfully Updated");
    EXPECT_EQ(announced_, "Your Entered Time  5  hours  5 Minutes  is saved as  5.08 hours");
    EXPECT_EQ(Newest(), "Hill Time/5.08W");

    connection_.Execute("update TimeZone set TimeDifference = 11 where SNo = " + std::to_string(number));
    master_.Show(number, fields);
    EXPECT_EQ(fields.hours + ":" + fields.minutes, "11:00");
}

TEST_F(TimeZoneMasterTest, AFaultLeavesZonesAndListsAsTheyWere) {
    const std::string before = Count();
    const auto ignore = [](const Notice &) {};
    ZoneFields fields = Fields(3);
    fields.place = "x',1,'E');delete from TimeZone;--";
    EXPECT_TRUE(RefusesQuote([&] { master_.Add(fields, ignore); }));
    // The country has gone: the zone that was inserted goes with it.
    EXPECT_THROW(master_.Add(Fields(9999), ignore), StoreError);
    connection_.Execute("create trigger refusal before update on Country_Master begin select "
                        "raise(abort, 'refused'); end");
    EXPECT_NE(ErrorOf([&] { master_.Add(Fields(3), ignore); }).find("refused"), std::string::npos);
    EXPECT_EQ(Count(), before);
    EXPECT_EQ(ListOf(3), "73,69");
}

} // namespace
} // namespace kelvaro::store
