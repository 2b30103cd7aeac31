#include "store/charts/ChartStore.h"

#include "runtime/Paths.h"
#include "tests/store/StoreFixture.h"

#include <utility>

namespace kelvaro::store {
namespace {

ChartToSave SampleChart(const std::string &person, const std::string &gender = "Male") {
    return {person,
            person,
            gender,
            "101",
            "Hyderabad (A.P)",
            MomentOf({1965, 7, 4}),
            MomentOf({1965, 7, 4}, {14, 5, 0}),
            17,
            "N",
            20,
            78,
            "E",
            30.5,
            181};
}

class ChartStoreTest : public StoreTest {
protected:
    ChartStore charts_{connection_};
};

TEST_F(ChartStoreTest, SavesAWholeRow) {
    EXPECT_EQ(charts_.NewestNumber(), 0);
    const SavedOrNot saved = charts_.SC_SaveChart(SampleChart("Velnesh"));
    EXPECT_TRUE(saved.isSaved);
    EXPECT_EQ(saved.notice.text, "Chart Successfully Saved");
    EXPECT_EQ(First("select Sno || '|' || ChartName || '|' || Gender || '|' || Country || '|' || City || '|' "
                    "|| ChartDay || '|' || ChartMonth || '|' || ChartYear || '|' || ChartHour || '|' || "
                    "ChartMinute || '|' || ChartSecond || '|' || LatitudeDegree || Latitude_NS || "
                    "LatitudeMinute || '|' || LongitudeDegree || Longitude_EW || LongitudeMinute || '|' || "
                    "TimeDifference from ChartSave"),
              "1|Velnesh~4-Jul-1965|Male|101|Hyderabad (A.P)|4|7|1965|14|5|0|17.0N20.0|78.0E30.5|181");
    EXPECT_EQ(charts_.NewestNumber(), 1);
}

TEST_F(ChartStoreTest, ABadRowSpoilsItselfOnly) {
    std::string told;
    connection_.OnRowsLeftOut([&told](const std::string &remark) { told = remark; });
    for (const char *person : {"Anil", "Uma", "Velnesh"}) {
        charts_.SC_SaveChart(SampleChart(person));
    }
    connection_.Execute(
        "update ChartSave set ChartName = hex(zeroblob(500000)) || '~4-Jul-1965' where Sno = 1");
    connection_.Execute("update ChartSave set Sno = 4611686018427387904 where Sno = 2");
    const std::vector<ListItem> list = charts_.fnFillChart("All").List_VC_ChartName;
    ASSERT_EQ(list.size(), 2U);
    EXPECT_TRUE(told.starts_with("Left out: 1 of the saved charts in the database cannot be read.")) << told;
    // A chart that is saved beside it gets a number that can be read, and so does that one then.
    EXPECT_TRUE(charts_.SC_SaveChart(SampleChart("Zubin")).isSaved);
    EXPECT_EQ(charts_.NewestNumber(), 5);
    EXPECT_EQ(First("select group_concat(Sno || substr(ChartName, 1, 1), ' ') from (select * from ChartSave "
                    "order by Sno)"),
              "10 3V 4U 5Z");
    // The name is shortened, and the date behind it and the chart's number are there.
    EXPECT_EQ(list.front(), (ListItem{std::string(254, '0') + "…~4-Jul-1965", 1}));
    StoredChart chart = charts_.Read(1);
    EXPECT_EQ(chart.ChartName, list.front().text);
    EXPECT_EQ(First("select length(ChartName) from ChartSave where Sno = 1"), "1000011") << "only shown so";
    chart.ChartName = "Anil~4-Jul-1965";
    charts_.Update(chart);
    EXPECT_EQ(charts_.Read(1).ChartName, "Anil~4-Jul-1965");
    connection_.Execute("update ChartSave set ChartDay = null where Sno = 1");
    EXPECT_EQ(
        ErrorOf([&] { charts_.Read(1); }),
        "One of the saved charts in the database is damaged. The others can still be used. Enter it anew; a "
        "backup copy of the database file " +
            TextOfPath(file_) + " may have it as it was. Details: ChartDay is empty in row 1.");
    charts_.Delete(1);
    EXPECT_EQ(ErrorOf([&] { charts_.Read(1); }),
              "What is asked for is no longer among the saved charts in the database. Choose it anew.");
}

TEST_F(ChartStoreTest, OnlyANameWithoutADateCanBeUsedAlready) {
    EXPECT_TRUE(charts_.SC_SaveChart(SampleChart("Velnesh")).isSaved);
    EXPECT_TRUE(charts_.SC_SaveChart(SampleChart("Velnesh")).isSaved);
    connection_.Execute("update ChartSave set ChartName = 'Uma' where Sno = 2");
    const SavedOrNot refused = charts_.SC_SaveChart(SampleChart(" Uma "));
    EXPECT_FALSE(refused.isSaved);
    EXPECT_EQ(refused.notice.text, "Chart Name Already Used , Enter Another Name");
    EXPECT_EQ(refused.notice.focus, "Txt_SC_ChartName");
    EXPECT_EQ(First("select count(*) from ChartSave"), "2");
}

TEST_F(ChartStoreTest, AQuoteIsAnErrorAndNoStatement) {
    ChartToSave chart = SampleChart("Velnesh");
    for (std::string *text : {&chart.SC_ChartName, &chart.SC_City}) {
        const std::string before = std::exchange(*text, "O'Brien");
        EXPECT_TRUE(RefusesQuote([&] { charts_.SC_SaveChart(chart); }));
        *text = before;
    }
    EXPECT_EQ(charts_.NewestNumber(), 0);
}

TEST_F(ChartStoreTest, ListsByNameAndGender) {
    charts_.SC_SaveChart(SampleChart("uma", "Female"));
    charts_.SC_SaveChart(SampleChart("Velnesh"));
    charts_.SC_SaveChart(SampleChart("Anil"));
    connection_.Execute("insert into GChartSave (ChartName) values ('Uma and Anil')");
    const struct {
        const char *dataGen, *heading;
        std::vector<ListItem> charts;
    } cases[] = {
        {"All",
         "Select User Details",
         {{"Anil~4-Jul-1965", 3}, {"uma~4-Jul-1965", 1}, {"Velnesh~4-Jul-1965", 2}}},
        {"Male", "Select Male Details", {{"Anil~4-Jul-1965", 3}, {"Velnesh~4-Jul-1965", 2}}},
        {"Female", "Select Female Details", {{"uma~4-Jul-1965", 1}}},
        {"G", "Select Couple Details", {{"Uma and Anil", 1}}},
        {"", "", {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(charts_.fnFillChart(c.dataGen).Lab_Details, c.heading);
        EXPECT_EQ(charts_.fnFillChart(c.dataGen).List_VC_ChartName, c.charts) << c.dataGen;
    }
}

} // namespace
} // namespace kelvaro::store
