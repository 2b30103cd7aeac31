#include "store/database/Dialect.h"

#include "runtime/RuntimeError.h"

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

} // namespace
} // namespace kelvaro::store
