#include "store/database/Connection.h"

#include "runtime/Paths.h"
#include "tests/store/StoreFixture.h"

#include <SQLiteCpp/Database.h>

namespace kelvaro::store {
namespace {

namespace fs = std::filesystem;

constexpr const char *zoneCount = "select count(*) from TimeZone";
constexpr const char *addZone =
    "insert into TimeZone([Place],[TimeDifference],[TimeZone]) values ('Test',1,'E')";

TEST_F(StoreTest, RunsTheFirstStatementOnlyAndNamesWhatItLacks) {
    const std::string advice =
        "Put a backup copy of the database file " + TextOfPath(file_) + " in its place. ";
    EXPECT_EQ(ErrorOf([&] { connection_.Execute("delete from Nowhere"); }),
              "The database is damaged where it keeps the tables. " + advice +
                  "Details: no such table: Nowhere.");
    EXPECT_EQ(ErrorOf([&] { First("select Nowhere from [timezone]"); }),
              "The database is damaged where it keeps the time zones. The chart on the screen can still be "
              "read and printed. " +
                  advice + "Details: no such column: Nowhere.");
    connection_.Execute("insert into Country_Master([CountryName],[TimeZoneID]) values ('x','1'); drop table "
                        "ChartSave; --','')");
    EXPECT_EQ(First("select count(*) from Country_Master; delete from Country_Master"), "247");
    EXPECT_EQ(First("select count(*) from Country_Master"), "247");
    EXPECT_EQ(First("select count(*) from ChartSave"), "0");
}

TEST_F(StoreTest, KeepsACommittedTransactionAndUndoesAnyOther) {
    {
        Transaction transaction(connection_);
        connection_.Execute(addZone);
    }
    EXPECT_EQ(First(zoneCount), "375");
    {
        Transaction transaction(connection_);
        connection_.Execute(addZone);
        transaction.Commit();
    }
    Connection other;
    other.Open(file_);
    EXPECT_EQ(FirstText(zoneCount, other), "376");
}

TEST_F(StoreTest, ATransactionInsideAnotherJoinsIt) {
    const struct {
        bool commitsOuter, commitsInner;
        const char *rows;
    } cases[] = {{false, true, "375"}, {true, false, "376"}, {true, true, "378"}};
    for (const auto &c : cases) {
        {
            Transaction outer(connection_);
            connection_.Execute(addZone);
            {
                Transaction inner(connection_);
                connection_.Execute(addZone);
                if (c.commitsInner) {
                    inner.Commit();
                }
            }
            if (c.commitsOuter) {
                outer.Commit();
            }
        }
        EXPECT_EQ(First(zoneCount), c.rows);
    }
}

TEST_F(StoreTest, ATransactionMayOutliveItsConnection) {
    {
        Transaction transaction(connection_);
        connection_.Execute(addZone);
        connection_.Close();
        EXPECT_NE(ErrorOf([&] { transaction.Commit(); }), "");
    }
    connection_.Open(file_);
    EXPECT_EQ(First(zoneCount), "375");
}

TEST_F(StoreTest, AMemoryCopyLeavesTheFileAlone) {
    connection_.Execute("insert into tempBhukthi(UserID) Values('1')");
    connection_.Execute(addZone);
    connection_.Execute("delete from TimeZone where SNo = 376");
    connection_.Close();
    const std::string before = BytesOf(file_);

    connection_.OpenCopyInMemory(file_);
    EXPECT_EQ(First("select count(*) from City_Master"), "60398");
    EXPECT_EQ(First("select count(*) from tempBhukthi"), "0");
    EXPECT_EQ(First("select CityID from City_Master where CityName = 'HYDERABAD (a.p)'"),
              First("select max(CityID) from City_Master where CityName = 'Hyderabad (A.P)'"));
    connection_.Execute(addZone);
    EXPECT_EQ(First("select max(SNo) from TimeZone"), "377");
    connection_.Execute("delete * from City_Master");
    EXPECT_EQ(BytesOf(file_), before);
}

TEST_F(StoreTest, ALockedDatabaseIsWaitedForAndThenReported) {
    SQLite::Database other(TextOfPath(file_), SQLite::OPEN_READWRITE);
    other.exec("begin exclusive");
    const std::string locked = "The database file " + TextOfPath(file_) +
                               " is locked by another program. Try again when that program is done with it.";
    Connection late{patience_};
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(ErrorOf([&] { late.Open(file_); }), locked);
    EXPECT_FALSE(late.IsOpen());
    EXPECT_EQ(ErrorOf([&] { connection_.Execute(addZone); }), locked);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 3 * patience_ / 2) << "both have waited";
    other.exec("rollback");
    connection_.Execute(addZone);
    EXPECT_EQ(First(zoneCount), "376");
}

TEST_F(StoreTest, AWriteProtectedDatabaseIsReadAndRefusesTheFirstWrite) {
    if (!HoldsWriteProtection()) {
        GTEST_SKIP() << "this user can write everywhere";
    }
    const std::string refusal = "The database file " + TextOfPath(file_) +
                                " or its folder is write-protected: nothing can be stored.";
    const auto expectRefusal = [&](const char *what) {
        SCOPED_TRACE(what);
        const OrdinaryUser user;
        connection_.Open(file_);
        EXPECT_EQ(First(zoneCount), "375");
        EXPECT_EQ(ErrorOf([&] { connection_.Execute(addZone); }), refusal);
        EXPECT_EQ(ErrorOf([&] { connection_.RequireWritable(); }), refusal);
        EXPECT_EQ(First(zoneCount), "375");
    };
    fs::permissions(file_, fs::perms(0444));
    expectRefusal("the file");
    fs::permissions(file_, fs::perms(0666));
    ProtectFolder(folder_.Path());
    expectRefusal("the folder");
    OpenFolder(folder_.Path());
}

TEST_F(StoreTest, AFullDiskUndoesTheChangeAndIsTold) {
    First("pragma max_page_count = 1"); // no page more than there are
    const std::string tooLong = "update TimeZone set Place = hex(zeroblob(100000)) where SNo = ";
    {
        Transaction transaction(connection_);
        connection_.Execute(addZone);
        EXPECT_EQ(ErrorOf([&] { connection_.Execute(tooLong + "1"); }),
                  "There is no room left on the disk of " + TextOfPath(file_) +
                      ": nothing was stored. Make room and try again.");
    }
    EXPECT_EQ(First(zoneCount), "375");
}

TEST_F(StoreTest, EveryUseOfAClosedConnectionRaises) {
    connection_.Close();
    connection_.Close();
    const std::string closed = "The connection to the database is closed: nothing can be read or stored. "
                               "Start the program anew when the database file is in its place.";
    EXPECT_EQ(ErrorOf([&] { connection_.Execute(addZone); }), closed);
    EXPECT_EQ(ErrorOf([&] { First(zoneCount); }), closed);
    EXPECT_EQ(ErrorOf([&] { Transaction transaction(connection_); }), closed);
}

TEST_F(StoreTest, OpensOnlyADatabaseOfThisProgram) {
    const std::string seed = BytesOf(file_);
    std::string garbled = seed;
    garbled.replace(100, 4000, 4000, '\xff');
    WriteFile(folder_ / "empty", "");
    WriteFile(folder_ / "text", std::string(2000, 'x'));
    WriteFile(folder_ / "cut", seed.substr(0, seed.size() / 2));
    WriteFile(folder_ / "garbled", garbled);
    SQLite::Database(TextOfPath(folder_ / "foreign"), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("create table Preference(PreID text)");
    const struct {
        const char *name, *error;
    } cases[] = {{"missing", "is missing"},
                 {"", "cannot be opened"},
                 {"empty", "is no database of this program: it has no table ChartSave"},
                 {"foreign", "is no database of this program: it has no table ChartSave"},
                 {"text", "is damaged or no database"},
                 {"cut", "is damaged"},
                 {"garbled", "is damaged"}};
    for (const auto &c : cases) {
        const std::string error = ErrorOf([&] { connection_.Open(folder_ / c.name); });
        EXPECT_NE(error.find(c.error), std::string::npos) << c.name << ": " << error;
        EXPECT_NE(error.find(TextOfPath(folder_ / c.name)), std::string::npos) << error;
        EXPECT_EQ(ErrorOf([&] { connection_.OpenCopyInMemory(folder_ / c.name); }), error);
        EXPECT_FALSE(connection_.IsOpen());
    }
    EXPECT_FALSE(fs::exists(folder_ / "missing"));
    EXPECT_EQ(fs::file_size(folder_ / "empty"), 0U);
}

} // namespace
} // namespace kelvaro::store
