#include "store/database/Recordset.h"

#include "runtime/RuntimeError.h"
#include "store/database/Dialect.h"
#include "tests/store/StoreFixture.h"

#include <gtest/gtest.h>

#include <utility>

namespace kelvaro::store {
namespace {

TEST(Dialect, DropsTheStarOfADelete) {
    EXPECT_EQ(Translated("delete * from PersonalDetails"), "delete   from PersonalDetails");
    EXPECT_EQ(Translated(" DELETE  *from T where a = '*'"), " DELETE   from T where a = '*'");
    for (const char *statement : {"delete from Chartsave where SNo =5", "select * from T",
                                  "insert into T values ('delete * from T')", ""}) {
        EXPECT_EQ(Translated(statement), statement);
    }
}

TEST(Dialect, TextOfTheUserIsNoPartOfAStatement) {
    EXPECT_EQ(Quoted("x); delete from ChartSave; --"), "'x); delete from ChartSave; --'");
    for (const char *text : {"'", "O''Brien", "x'); delete from ChartSave; --"}) {
        EXPECT_THROW(Quoted(text), RuntimeError) << text;
    }
}

TEST(Dialect, FindsTheTableOfAStatement) {
    EXPECT_EQ(TableOf("insert into City_MAster([CityName]) values ('from Pune')"), "City_MAster");
    EXPECT_EQ(TableOf("delete *from [Time] where SNo = 1"), "Time");
    EXPECT_EQ(TableOf("UPDATE Preference set PreID = PreID"), "Preference");
    EXPECT_EQ(TableOf("pragma integrity_check") + TableOf("select 1 from"), "");
}

TEST(Dialect, FindsTheTableOfWholeRows) {
    const std::pair<const char *, const char *> tables[] = {
        {"select * from Preference where PreID = '1'", "Preference"},
        {"SELECT *FROM [City_Master]order by CityName", "[City_Master]"},
        {"select * from TimeZone; delete from TimeZone", "TimeZone"},
        {"select * from TimeZone, Preference", ""},
        {"select * from TimeZone t", ""},
        {"select * from (select 1)", ""},
        {"select Place from TimeZone", ""},
        {"select * from", ""},
    };
    for (const auto &[statement, table] : tables) {
        const auto wholeRows = AsWholeRows(statement);
        EXPECT_EQ(wholeRows ? wholeRows->table : "", table) << statement;
    }
}

class RecordsetTest : public StoreTest {
protected:
    Recordset rows_;
};

TEST_F(RecordsetTest, ReadsFieldsInAnyCase) {
    rows_.Open("Select * From Preference", connection_);
    EXPECT_EQ(rows_.Text("ayanamsa"), "Lahiri");
    EXPECT_EQ(rows_.Number("DayinYear"), 365.25);
    EXPECT_EQ(rows_.Text("DAYINYEAR"), "365.25");
    EXPECT_EQ(rows_.Text("PreID"), rows_.Text(std::size_t{0}));
    EXPECT_EQ(rows_.FieldCount(), 8U);
    EXPECT_NE(ErrorOf([&] { rows_.Text("Nothing"); }).find("Nothing"), std::string::npos);
    EXPECT_THROW(rows_.Text(std::size_t{8}), StoreError);
    EXPECT_THROW(rows_.Number("Ayanamsa"), DamagedRow);
}

TEST_F(RecordsetTest, TellsNullFromNoRow) {
    rows_.Open("Select Max(SNO) From ChartSave", connection_);
    EXPECT_FALSE(rows_.IsEndOfFile());
    EXPECT_TRUE(rows_.IsNull(std::size_t{0}));
    EXPECT_EQ(rows_.Text(std::size_t{0}), "");
    EXPECT_THROW(rows_.Integer(std::size_t{0}), DamagedRow);
    rows_.Close();

    connection_.Execute("delete from Preference");
    rows_.Open("Select * From Preference", connection_);
    EXPECT_TRUE(rows_.IsEndOfFile());
    EXPECT_NE(ErrorOf([&] { rows_.Text("Ayanamsa"); }).find("Details: there is no row"), std::string::npos);
    EXPECT_THROW(rows_.MoveNext(), StoreError);
    EXPECT_THROW(rows_.Assign("Ayanamsa", std::string("KP")), StoreError);
    EXPECT_THROW(rows_.Update(), StoreError);
}

TEST_F(RecordsetTest, RoundsWholeNumbersHalfToEven) {
    rows_.Open("select 2.5, 3.5, 2147483648, '7.5', 'x'", connection_);
    EXPECT_EQ(rows_.Integer(std::size_t{0}), 2);
    EXPECT_EQ(rows_.Integer(std::size_t{1}), 4);
    EXPECT_THROW(rows_.Integer(std::size_t{2}), DamagedRow);
    EXPECT_EQ(rows_.Text(std::size_t{2}), "2147483648");
    EXPECT_EQ(rows_.Integer(std::size_t{3}), 8);
    EXPECT_THROW(rows_.Integer(std::size_t{4}), DamagedRow);
}

TEST_F(RecordsetTest, MustBeClosedBeforeItIsOpenedAgain) {
    EXPECT_THROW(rows_.IsEndOfFile(), StoreError);
    rows_.Open("select * from TimeZone where SNo = 1 order by Place", connection_);
    EXPECT_THROW(rows_.Open("select * from Preference", connection_), StoreError);
    EXPECT_EQ(rows_.Text("SNo"), "1");
    rows_.Close();
    EXPECT_THROW(rows_.Text("SNo"), StoreError);
    EXPECT_THROW(rows_.Open("select * from Nowhere", connection_), StoreError);
    EXPECT_FALSE(rows_.IsOpen());
}

TEST_F(RecordsetTest, UpdatesOneRowInPlace) {
    for (int chart = 0; chart < 3; ++chart) {
        connection_.Execute("insert into ChartSave (ChartName,Gender,Country,City,LatitudeDegree,"
                            "TimeDifference) values  ('Velnesh','Male','101','Hyderabad (A.P)',17,155)");
    }
    rows_.Open("select * from ChartSave where Sno = 2", connection_);
    rows_.Assign("chartname", std::string("O'Hara~1-Jan-2000"));
    rows_.Assign("CITY", std::string("Poona"));
    rows_.Assign("ChartSecond", std::string("00"));
    rows_.Assign("LatitudeDegree", 18.5);
    rows_.Assign("Country", std::int64_t{7});
    rows_.Assign("TimeDifference", std::monostate());
    rows_.Assign("City", std::string("Pune"));
    EXPECT_EQ(First("select count(*) from ChartSave where City = 'Pune'"), "0");
    rows_.Update();
    EXPECT_EQ(rows_.Text("City") + rows_.Text("ChartSecond"), "Pune0");
    EXPECT_EQ(First("select group_concat(ChartName || '/' || City || LatitudeDegree || Country || Gender || "
                    "ifnull(TimeDifference, 'null'), ' ') from (select * from ChartSave order by Sno)"),
              "Velnesh/Hyderabad (A.P)17.0101Male155 O'Hara~1-Jan-2000/Pune18.57Malenull "
              "Velnesh/Hyderabad (A.P)17.0101Male155");
}

TEST_F(RecordsetTest, ForgetsWhatWasAssignedAndNotStored) {
    rows_.Open("select * from TimeZone where SNo < 3", connection_);
    rows_.Assign("Place", std::string("Nowhere"));
    rows_.MoveNext();
    rows_.Update();
    rows_.Assign("Place", std::string("Nowhere"));
    rows_.Close();
    EXPECT_EQ(First("select count(*) from TimeZone where Place = 'Nowhere'"), "0");
}

TEST_F(RecordsetTest, AFailedUpdateLeavesTheRow) {
    rows_.Open("select * from City_Master where CityID = 5", connection_);
    const std::string name = rows_.Text("CityName");
    rows_.Assign("CityName", std::string("Elsewhere"));
    rows_.Assign("LatitudeDegree", std::string());
    EXPECT_NE(ErrorOf([&] { rows_.Update(); }).find("City_Master.LatitudeDegree"), std::string::npos);
    EXPECT_EQ(rows_.Text("CityName"), name);
    EXPECT_EQ(First("select CityName from City_Master where CityID = 5"), name);

    connection_.Execute("delete from City_Master where CityID = 5");
    rows_.Assign("LatitudeDegree", 5.0);
    EXPECT_NE(ErrorOf([&] { rows_.Update(); }).find("no longer"), std::string::npos);
}

TEST_F(RecordsetTest, OnlyWholeRowsCanBeChanged) {
    rows_.Open("select * from TimeZone, Preference", connection_);
    EXPECT_THROW(rows_.Assign("Bhava", std::string("y")), StoreError);
}

} // namespace
} // namespace kelvaro::store
