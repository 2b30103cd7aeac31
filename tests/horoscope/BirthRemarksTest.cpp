#include "horoscope/entry/BirthRemarks.h"

#include "horoscope/entry/DiscardedBirths.h"
#include "horoscope/entry/LastChart.h"
#include "tests/horoscope/BirthEntryFixture.h"

namespace kelvaro {
namespace {

using BirthRemarksTest = BirthEntryTest;

TEST_F(BirthRemarksTest, UnderstoodIsWhatIsComputed) {
    BirthFields fields = Entered("7", false);
    fields.txt_Date = "5";
    fields.txt_Month = "mar";
    fields.txt_Year = "1990";
    fields.cbMins = "35";
    fields.txt_VC_City = "Chennagiri";
    EXPECT_EQ(BirthAsUnderstood(fields), "Monday 5 March 1990, 07:35, city not chosen, 5.5 hrs E");
    ChooseCity(fields, lists_);
    const std::string place = ", Chennagiri 11 N 32 78 E 4, 5.5 hrs E";
    EXPECT_EQ(BirthAsUnderstood(fields), "Monday 5 March 1990, 07:35" + place);
    ASSERT_FALSE(AcceptBirth(fields, horoscope_));
    EXPECT_EQ(horoscope_.state.site, (Site{11, 32, "N", 78, 4, "E", 5.5, "E"}));

    // What is understood as a time is one that OK takes, and no other.
    const struct {
        const char *hour;
        bool isPm;
        const char *understood;
    } cases[] = {{"12", false, "00:35"},       {"12", true, "12:35"},        {"07", true, "19:35"},
                 {"13", false, "13:35"},       {"13", true, "no such time"}, {"24", false, "no such time"},
                 {"-1", true, "no such time"}, {"x", false, "no such time"}, {" ", false, "no time yet"}};
    for (const auto &c : cases) {
        fields.cbHour = c.hour;
        fields.Opt_PM = c.isPm;
        EXPECT_EQ(BirthAsUnderstood(fields), std::string("Monday 5 March 1990, ") + c.understood + place);
        std::string told;
        try {
            told = AcceptBirth(fields, horoscope_) ? "refused" : "";
        } catch (const std::exception &error) {
            told = error.what();
        }
        EXPECT_EQ(told.empty(), std::string(c.understood).starts_with("no ") == false) << c.hour;
    }
    fields.txt_Date = "32";
    EXPECT_TRUE(BirthAsUnderstood(fields).starts_with("no such date"));
    fields.txt_VC_Country = "Indi";
    fields.cbGender.clear();
    EXPECT_TRUE(BirthAsUnderstood(fields, {true})
                    .ends_with(", no such country in the list, gender not chosen, stored as Female"));
}

TEST_F(BirthRemarksTest, GenderIsStoredAsTheFormSays) {
    BirthFields fields = Entered();
    for (const auto &[number, text] : {std::pair(0, "Female"), std::pair(1, "")}) {
        fields.cbGender.clear();
        ASSERT_EQ(fields.txt_VC_UserId, number);
        EXPECT_EQ(StoredGender(fields), text);
        const std::string told = number == 0 ? "stored as Female" : "Save would empty it";
        EXPECT_TRUE(BirthAsUnderstood(fields).ends_with(", gender not chosen, " + told));
        Save(fields);
        EXPECT_EQ(First("select Gender from ChartSave"), text);
    }
}

TEST_F(BirthRemarksTest, FormSaysWhichChartSaveChanges) {
    BirthFields fields = Entered();
    EXPECT_EQ(RemarkOnChart(fields).text, "Not saved yet");
    Save(fields);
    EXPECT_EQ(RemarkOnChart(fields).text, "Saved as Velnesh, 4-Jul-1965. Save changes that chart.");
    ClearFields(fields);
    fields.Txt_VC_ChartName = "Uma";
    EXPECT_TRUE(RemarkOnChart(fields).isWarning);
    EXPECT_TRUE(RemarkOnChart(fields).text.starts_with("Save replaces the chart of Velnesh, 4-Jul-1965."));

    // Another program deletes the chart: the save that fails finds it.
    BirthFields other = Open({"Velnesh~4-Jul-1965", 1}).fields;
    EXPECT_EQ(other.savedAs, "Velnesh~4-Jul-1965");
    connection_.Execute("delete from ChartSave");
    EXPECT_NE(store::ErrorOf([&] { Save(other); }).find("bring back"), std::string::npos);
    EXPECT_TRUE(RemarkOnChart(other).text.starts_with("The saved chart has gone"));
}

TEST_F(BirthRemarksTest, ListOpensAtTheChartInForce) {
    BirthFields fields = Entered();
    EXPECT_EQ(ChartInForce(fields, horoscope_, {}), 0);
    Save(fields);
    RestoreLastChart(settings_, horoscope_.state);
    const auto charts = store::ChartStore(connection_).fnFillChart("All").List_VC_ChartName;
    EXPECT_EQ(ChartInForce({}, horoscope_, charts), 1) << "restored at the start";
    horoscope_.chartNumber = 7;
    EXPECT_EQ(ChartInForce({}, horoscope_, charts), 7);
    EXPECT_EQ(ChartInForce(fields, horoscope_, charts), 1);
    EXPECT_EQ(ChartAtAGlance(store::ChartStore(connection_).Read(1)),
              "Sunday 4 July 1965, 14:15, Hyderabad (A.P) 17 N 20 78 E 30");
}

TEST_F(BirthRemarksTest, DiscardedBirthsComeBackOneAfterTheOther) {
    DiscardedBirths discarded;
    BirthFields uma = Entered();
    uma.Txt_VC_ChartName = "Uma";
    const BirthFields velnesh = Entered();
    discarded.Keep(uma);
    discarded.Keep(velnesh);
    discarded.Keep(velnesh);
    BirthFields form = Entered("5");
    form.Txt_VC_ChartName = "Anil";
    Save(form);
    for (const char *name : {"Velnesh", "Uma", "Anil", "Velnesh"}) {
        discarded.BringBack(form, true);
        EXPECT_EQ(form.Txt_VC_ChartName, name);
        EXPECT_EQ(form.txt_VC_UserId, 1) << "the form stands for the chart that it stood for";
    }
    // What has been saved is not offered as lost, however it was typed.
    discarded.Keep(velnesh);
    discarded.Forget(Entered());
    ASSERT_NE(discarded.Next(), nullptr);
    EXPECT_EQ(discarded.Next()->Txt_VC_ChartName, "Uma");
    // A zone that came with an opened chart is stored with a new one, too.
    discarded = {};
    discarded.Keep(Open({"Anil~4-Jul-1965", 1}).fields);
    BirthFields fresh;
    discarded.BringBack(fresh, false);
    EXPECT_EQ(discarded.Next(), nullptr);
    Save(fresh);
    EXPECT_EQ(First("select TimeDifference from ChartSave where Sno = 2"), std::to_string(indianZone));
}

} // namespace
} // namespace kelvaro
