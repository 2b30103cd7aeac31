#include "horoscope/entry/BirthEntry.h"

#include "horoscope/entry/BirthRemarks.h"
#include "runtime/MomentText.h"
#include "store/charts/ChartStore.h"
#include "tests/RuleOrder.h"
#include "tests/horoscope/BirthEntryFixture.h"

namespace kelvaro {
namespace {

TEST_F(BirthEntryTest, FieldsAtLoadShowThePresentMoment) {
    const std::pair<CivilClock, const char *> cases[] = {{{0, 5, 59}, "01 Mar 2026 12:05 AM Male"},
                                                         {{9, 5, 0}, "01 Mar 2026 09:05 AM Male"},
                                                         {{12, 5, 0}, "01 Mar 2026 12:05 PM Male"},
                                                         {{23, 5, 0}, "01 Mar 2026 11:05 PM Male"}};
    for (const auto &[clock, shown] : cases) {
        const BirthFields f = FieldsAtLoad(MomentOf({2026, 3, 1}, clock));
        EXPECT_EQ(f.txt_Date + " " + f.txt_Month + " " + f.txt_Year + " " + f.cbHour + ":" + f.cbMins +
                      (f.Opt_PM ? " PM " : " AM ") + f.cbGender + f.Txt_VC_ChartName + f.txt_VC_Country,
                  shown);
    }
}

TEST_F(BirthEntryTest, RulesComeInTheirOrder) {
    BirthFields good = Entered();
    good.txt_Month = "Jun"; // thirty days
    ExpectOrder<BirthFields>(
        good,
        {
            {"Enter Name@Txt_VC_ChartName", &BirthFields::Txt_VC_ChartName, {"", "  "}},
            {"Enter Date of Birth@txt_Date", &BirthFields::txt_Date, {""}},
            {"Enter Month@txt_Month", &BirthFields::txt_Month, {""}},
            {"Enter Year@txt_Year", &BirthFields::txt_Year, {""}},
            {"Enter Year Between 1800 and 3000@txt_Year", &BirthFields::txt_Year, {"1799", "3001", "-1965"}},
            {"Enter Correct Date@", &BirthFields::txt_Date, {"31", "0", "x"}},
            {"Enter Correct Time@cbHour", &BirthFields::cbHour, {""}},
            {"Enter Correct Time@cbMins", &BirthFields::cbMins, {""}},
            {"Enter Correct Time@cbHour", &BirthFields::cbHour, {"25", "-1"}},
            {"Enter Correct Time@cbMins", &BirthFields::cbMins, {"60", "-1"}},
            {"Select Country@txt_VC_Country", &BirthFields::txt_VC_Country, {"", "Indi"}},
            {"Select City@txt_VC_City", &BirthFields::txt_VC_City, {"", "Delhi"}},
            {"Select Timezone@cbTimeZone", &BirthFields::cbTimeZone, {"", "IST"}},
            {"A name has at most 255 characters.@Txt_VC_ChartName",
             &BirthFields::Txt_VC_ChartName,
             {std::string(256, 'x')}},
        },
        [this](BirthFields fields) {
            const auto notice = AcceptBirth(fields, horoscope_);
            EXPECT_EQ(Told(Save(fields)), notice ? Told(*notice) : "nothing");
            return notice ? Told(*notice) : "nothing";
        });
    EXPECT_TRUE(display_.events.empty());
    EXPECT_TRUE(settings_.values.empty());

    for (const char *year : {"1800", "3000"}) {
        good.txt_Year = year;
        EXPECT_FALSE(FirstBroken(birthRules, good));
    }
}

TEST_F(BirthEntryTest, HourBecomesOneOfTwentyFour) {
    const struct {
        const char *hour;
        bool isPm;
        const char *text, *clock; ///< no clock where the time does not exist
    } cases[] = {
        {"12", false, "0", "00:15:00"},    {"12", true, "12", "12:15:00"},  {"2", true, "14", "14:15:00"},
        {"02", false, "02", "02:15:00"},   {"13", false, "13", "13:15:00"}, {"24", false, "24", ""},
        {"012", false, "012", "12:15:00"}, {"012", true, "24", ""},
    };
    for (const auto &c : cases) {
        BirthFields fields = Entered(c.hour, c.isPm);
        EXPECT_EQ(HourText(fields), c.text);
        HoroscopeState state;
        if (*c.clock == '\0') {
            EXPECT_THROW(HandOver(fields, state), ConversionError) << c.hour;
            EXPECT_THROW(Save(fields), ConversionError) << c.hour;
            EXPECT_EQ(state.birth.BirthDay, "14") << "nothing may be handed over by halves";
        } else {
            HandOver(fields, state);
            EXPECT_EQ(state.birth.BirthHour, c.text);
            EXPECT_EQ(TimingText(state.birth.BirthMoment), c.clock);
        }
    }
    for (const auto &[field, name] :
         {std::pair(&BirthFields::txt_Year, "Year"), std::pair(&BirthFields::cbHour, "Hour"),
          std::pair(&BirthFields::cbMins, "Minute")}) {
        BirthFields fields = Entered();
        fields.*field = "abc";
        try {
            AcceptBirth(fields, horoscope_);
            ADD_FAILURE() << name;
        } catch (const ConversionError &error) {
            EXPECT_TRUE(std::string_view(error.what()).starts_with(name)) << error.what();
        }
    }
    EXPECT_TRUE(settings_.values.empty());
}

TEST_F(BirthEntryTest, AcceptedBirthIsHandedOverAndComputed) {
    BirthFields fields = Entered();
    fields.txt_VC_UserId = 7;
    horoscope_.state.preferences.AyanamsaName = "Raman";
    EXPECT_FALSE(AcceptBirth(fields, horoscope_));
    const HoroscopeState &state = horoscope_.state;
    EXPECT_EQ(display_.failure, "");
    EXPECT_EQ(display_.Count("hide birth"), 1U);
    EXPECT_EQ(horoscope_.chartNumber, 7);
    EXPECT_EQ(MomentText(state.birth.BirthMoment), "04/07/1965 02:15 PM");
    EXPECT_EQ(state.birth.BirthMoment, state.positions.BirthMomentDate);
    EXPECT_EQ(state.preferences.AyanamsaInForce, "Raman");
    EXPECT_EQ(state.birth.BirthTimeZoneName, "Indian Standard Time  (5.5 hrs E)");
    EXPECT_EQ(state.site, (Site{17, 20, "N", 78, 30, "E", 5.5, "E"}));
}

TEST_F(BirthEntryTest, ChoicesFillTheFields) {
    BirthFields fields = Entered();
    EXPECT_EQ(fields.chosen.zoneNumber, indianZone) << "the only zone is chosen unasked";
    EXPECT_EQ(fields.txtLatDetails, "17 N 20");
    EXPECT_EQ(fields.txtLonDetails, "78 E 30");
    EXPECT_EQ(fields.txt_VC_Ayanamsa, "Lahiri");

    const PlaceChoices brazil = ChooseCountry(fields, {"Brazil", 29}, lists_, horoscope_.state);
    EXPECT_EQ(brazil.zones.size(), 8U);
    EXPECT_EQ(brazil.cities.size(), lists_.CitiesOf(29).size());
    EXPECT_EQ(fields.txt_VC_City + fields.cbTimeZone + fields.txtLatDetails + fields.txtLonDetails, "");
    EXPECT_EQ(SiteOf(fields).LatDeg + SiteOf(fields).LonDeg, 0);
    fields.txt_VC_City = "sao paulo";
    ChooseCity(fields, lists_);
    ChooseZone(fields, brazil.zones[1].number, lists_, horoscope_.state);
    EXPECT_EQ(fields.txtLatDetails + ", " + fields.txtLonDetails, "23 S 33, 46 W 38");
    EXPECT_EQ(fields.cbTimeZone, brazil.zones[1].text);
    EXPECT_EQ(fields.txt_VC_TimeDiffEW, "W");
    EXPECT_FALSE(FirstBroken(birthRules, fields));

    const BirthFields before = fields;
    ChooseCountry(fields, {}, lists_, horoscope_.state);
    EXPECT_EQ(fields, before);
}

TEST_F(BirthEntryTest, SavedReopenedChangedAndDeleted) {
    BirthFields fields = Entered("12", true);
    settings_.atWrite = [this] { ASSERT_EQ(First("select count(*) from ChartSave"), "1"); };
    EXPECT_EQ(Save(fields).text, "Chart Successfully Saved");
    EXPECT_EQ(fields.txt_VC_UserId, 1);
    EXPECT_EQ(settings_.values.size(), 18U);
    EXPECT_EQ(horoscope_.state.birth.ChartName + horoscope_.state.birth.BirthDay, "Velnesh14")
        << "OK alone hands over";

    const auto row = store::ChartStore(connection_).fnFillChart("All").List_VC_ChartName.at(0);
    EXPECT_EQ(row, (store::ListItem{"Velnesh~4-Jul-1965", 1}));
    OpenedBirth opened = Open(row);
    EXPECT_EQ(opened.choices.cities.size(), 7248U);
    BirthFields expected = fields;
    expected.txt_Date = "4";
    expected.Opt_PM = false; // noon comes back as 12 AM, and the form says so
    expected.isOpenedFromNoon = true;
    expected.chosen.zoneNumber = 0;
    expected.txt_VC_TimeDiffId = indianZone;
    EXPECT_EQ(opened.fields, expected);
    EXPECT_TRUE(RemarkOnTime(opened.fields).isWarning);

    // The settings come first, then the row.
    settings_.atWrite = nullptr;
    BirthFields changed = opened.fields;
    changed.Opt_PM = true;
    EXPECT_EQ(RemarkOnTime(changed).text, "");
    changed.Txt_VC_ChartName = "O'Brien";
    changed.txt_Date = "05";
    changed.cbHour = "3";
    const Notice updated = Save(changed);
    EXPECT_EQ(updated.text, "Details are Sucessfully Updated");
    EXPECT_EQ(updated.icon, Notice::Icon::None);
    EXPECT_EQ(First("select ChartName || ChartDay || ChartHour || TimeDifference from ChartSave"),
              "O'Brien~05-Jul-1965515181");
    EXPECT_EQ(settings_.values["Name"], "O'Brien");

    EXPECT_EQ(Told(DeleteBirth(changed, connection_)), "Successfully Deleted@Txt_VC_ChartName");
    EXPECT_EQ(changed.txt_VC_UserId, 1) << "the number stays";
    EXPECT_EQ(changed.txt_VC_Country + changed.cbHour + changed.cbGender + changed.txtLatDetails, "");
    EXPECT_TRUE(CanDeleteFromMenu(changed));
    EXPECT_FALSE(CanDeleteFromToolbar(changed));
    EXPECT_EQ(First("select count(*) from ChartSave"), "0");

    // The next save changes a row that is gone.
    BirthFields next = Entered();
    next.txt_VC_UserId = 1;
    const auto before = settings_.values;
    EXPECT_NE(store::ErrorOf([&] { Save(next); }).find("no longer"), std::string::npos);
    EXPECT_EQ(settings_.values, before);
    next.txt_VC_UserId = 0;
    Save(next);
    EXPECT_EQ(next.txt_VC_UserId, 2) << "the number of a deleted chart is never given again";
}

TEST_F(BirthEntryTest, HoursComeBackOnATwelveHourClock) {
    BirthFields fields = Entered();
    Save(fields);
    const struct {
        const char *stored, *hour;
        bool isPm, remarks;
    } cases[] = {{"0", "12", false, false},
                 {"11", "11", false, false},
                 {"12", "12", false, true},
                 {"13", "1", true, false}};
    for (const auto &c : cases) {
        connection_.Execute(std::string("update ChartSave set ChartHour = ") + c.stored);
        BirthFields opened = Open({"Velnesh~4-Jul-1965", 1}).fields;
        EXPECT_EQ(opened.cbHour, c.hour);
        EXPECT_EQ(opened.Opt_PM, c.isPm);
        EXPECT_EQ(RemarkOnTime(opened).text != "", c.remarks) << c.stored;
        // On the cleared form noon has been stated by nobody.
        ClearFields(opened);
        opened.cbHour = "12";
        opened.Opt_PM = false;
        EXPECT_EQ(RemarkOnTime(opened).text, "");
        EXPECT_EQ(opened.chosen, BirthFields::Chosen());
    }
}

TEST_F(BirthEntryTest, OpenedChartComputesAsItWasSaved) {
    // Zones on both sides of Greenwich, one of them not the country's only one.
    for (const store::ListItem &country : {store::ListItem{"India", 101}, store::ListItem{"Brazil", 29}}) {
        BirthFields fields = Entered();
        const PlaceChoices choices = ChooseCountry(fields, country, lists_, horoscope_.state);
        fields.txt_VC_City = choices.cities.back().text;
        ChooseCity(fields, lists_);
        ChooseZone(fields, choices.zones.back().number, lists_, horoscope_.state);
        Save(fields);
        AcceptBirth(fields, horoscope_);
        const double lagna = horoscope_.state.positions.LagnaLon;
        const BirthFields opened = Open({"Velnesh~4-Jul-1965", fields.txt_VC_UserId}).fields;
        EXPECT_EQ(opened.txt_VC_TimeDiffEW, fields.txt_VC_TimeDiffEW);
        AcceptBirth(Entered("5"), horoscope_);
        EXPECT_FALSE(AcceptBirth(opened, horoscope_));
        EXPECT_EQ(horoscope_.state.positions.LagnaLon, lagna) << country.text;
    }
}

TEST_F(BirthEntryTest, RefusedSavesLeaveEverythingAsItWas) {
    BirthFields first = Entered();
    Save(first);
    const auto settings = settings_.values;
    connection_.Execute("update ChartSave set ChartName = 'Uma'");
    BirthFields refused = Entered();
    refused.Txt_VC_ChartName = "O'Brien";
    const BirthFields typed = refused;
    EXPECT_THROW(Save(refused), store::StoreError);
    EXPECT_EQ(refused, typed);
    refused.Txt_VC_ChartName = "Uma";
    EXPECT_EQ(Told(Save(refused)), "Chart Name Already Used , Enter Another Name@Txt_VC_ChartName");
    EXPECT_EQ(refused.txt_VC_UserId, 0) << "the number of another person's chart";
    EXPECT_EQ(settings_.values, settings);
    EXPECT_EQ(First("select count(*) from ChartSave"), "1");
    // No transaction is left behind: the next save goes through.
    EXPECT_EQ(Save(first).text, "Details are Sucessfully Updated");
}

TEST_F(BirthEntryTest, SettingsThatCannotBeWrittenKeepTheStoredRow) {
    BirthFields fields = Entered();
    Save(fields);
    settings_.atWrite = [] { throw RuntimeError("no room"); };
    fields.txt_VC_City = "Delhi";
    ChooseCity(fields, lists_);
    EXPECT_THROW(Save(fields), RuntimeError);
    EXPECT_EQ(First("select City from ChartSave"), "Hyderabad (A.P)");

    BirthFields another = Entered();
    EXPECT_THROW(Save(another), RuntimeError);
    EXPECT_EQ(another.txt_VC_UserId, 2) << "stored, so that a second try does not store it twice";
}

TEST_F(BirthEntryTest, ChangeThatCannotBeCommittedKeepsTheSettings) {
    BirthFields fields = Entered();
    Save(fields);
    const auto kept = settings_.values;
    fields.Txt_VC_ChartName = "Someone Else";
    // Another program that is reading lets the row be changed, but not the change be committed.
    store::Connection other;
    other.Open(file_);
    other.Execute("begin");
    store::Recordset reader;
    reader.Open("select * from ChartSave", other);
    EXPECT_THROW(Save(fields), store::StoreError);
    EXPECT_EQ(settings_.values, kept);
    EXPECT_EQ(First("select ChartName from ChartSave"), "Velnesh~4-Jul-1965");
}

TEST_F(BirthEntryTest, CountryIsThePositionInTheList) {
    BirthFields fields = Entered();
    Save(fields);
    connection_.Execute("delete from Country_Master where CountryID = 5");
    EXPECT_EQ(Open({"Velnesh~4-Jul-1965", 1}).fields.chosen.countryId, 102) << "a gap moves the countries up";
    EXPECT_THROW(Open({"Velnesh~4-Jul-1965", 2}), store::StoreError);
    for (const char *gone : {"Country = 247", "Country = 5, TimeDifference = 9999"}) {
        connection_.Execute(std::string("update ChartSave set ") + gone);
        try {
            Open({"Velnesh~4-Jul-1965", 1});
            FAIL() << gone;
        } catch (const store::StoreError &error) {
            EXPECT_TRUE(std::string_view(error.what()).starts_with("This chart cannot be opened")) << gone;
        }
    }
}

} // namespace
} // namespace kelvaro
