#include "store/database/Dialect.h"

#include <gtest/gtest.h>

namespace kelvaro::store {
namespace {

TEST(Dialect, DropsTheStarOfADelete) {
    const struct {
        const char *statement, *translated;
    } cases[] = {
        {"delete * from PersonalDetails", "delete   from PersonalDetails"},
        {" DELETE  *from T where a = '*'", " DELETE   from T where a = '*'"},
        {"delete from Chartsave where SNo =5", "delete from Chartsave where SNo =5"},
        {"select * from T", "select * from T"},
        {"insert into T values ('delete * from T')", "insert into T values ('delete * from T')"},
        {"", ""},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Translated(c.statement), c.translated);
    }
}

TEST(Dialect, FindsTheTableOfWholeRows) {
    const struct {
        const char *statement, *table;
    } cases[] = {
        {"select * from Preference where PreID = '1'", "Preference"},
        {"Select * From KaliyugaYearDetails", "KaliyugaYearDetails"},
        {"SELECT *FROM [City_Master]order by CityName", "[City_Master]"},
        {"select * from TimeZone; delete from TimeZone", "TimeZone"},
        {"select * from TimeZone, Preference", ""},
        {"select * from TimeZone t", ""},
        {"select * from (select 1)", ""},
        {"select *, 1 from TimeZone", ""},
        {"select Place from TimeZone", ""},
        {"select * from", ""},
    };
    for (const auto &c : cases) {
        const auto wholeRows = AsWholeRows(c.statement);
        EXPECT_EQ(wholeRows ? wholeRows->table : "", c.table) << c.statement;
    }
}

} // namespace
} // namespace kelvaro::store
