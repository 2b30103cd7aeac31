#include "store/database/DatabaseFile.h"

#include "store/masters/PlaceLists.h"
#include "tests/store/StoreFixture.h"

#include <cstdlib>
#include <map>
#include <utility>

namespace kelvaro::store {
namespace {

namespace fs = std::filesystem;

/// A program folder with the seed database and a folder for the user's data that does not exist yet.
class DatabaseFileTest : public testing::Test {
protected:
    DatabaseFileTest() {
        fs::create_directory(program_);
        fs::copy_file(KELVARO_SEED_DATABASE, program_ / databaseFileName);
        fs::permissions(program_ / databaseFileName, fs::perms(0444));
    }
    ~DatabaseFileTest() override { fs::permissions(program_, fs::perms(0755)); }

    void WriteProtectProgram() { fs::permissions(program_, fs::perms(0555)); }
    fs::path Find() const {
        const OrdinaryUser user;
        return FindDatabaseFile(program_, user_);
    }

    TemporaryFolder folder_;
    fs::path program_ = folder_ / "program";
    fs::path user_ = folder_ / "data/kelvaro";
    fs::path userFile_ = user_ / databaseFileName;
};

TEST_F(DatabaseFileTest, IsBesideAProgramThatCanBeWritten) {
    fs::permissions(program_, fs::perms(0777));
    fs::remove(program_ / databaseFileName);
    EXPECT_EQ(Find(), program_ / databaseFileName);
    EXPECT_TRUE(fs::is_empty(program_));
    EXPECT_FALSE(fs::exists(user_));
}

TEST_F(DatabaseFileTest, IsCopiedOnceFromAProgramThatCannotBeWritten) {
    WriteProtectProgram();
    EXPECT_EQ(Find(), userFile_);
    const OrdinaryUser user;
    Connection connection;
    connection.Open(userFile_);
    EXPECT_EQ(FirstText("select count(*) from City_Master", connection), "60398");
    connection.Execute("update Preference set Ayanamsa = 'KP'");
    connection.Close();

    EXPECT_EQ(FindDatabaseFile(program_, user_), userFile_);
    connection.Open(userFile_);
    EXPECT_EQ(FirstText("select Ayanamsa from Preference", connection), "KP");
    EXPECT_EQ(std::distance(fs::directory_iterator(user_), {}), 2) << "only the database and the mark";
}

TEST_F(DatabaseFileTest, IsCopiedFromAnInstalledProgramByThoseWhoCouldWriteThereTooAndOnlyOnce) {
    fs::permissions(program_, fs::perms(0777));
    WriteFile(program_ / "DBMirvaneBasic.original", "");
    EXPECT_EQ(Find(), userFile_);
    EXPECT_TRUE(fs::remove(userFile_));
    EXPECT_EQ(Find(), userFile_);
    EXPECT_FALSE(fs::exists(userFile_)) << "that the charts are lost must not be hidden";
}

TEST_F(DatabaseFileTest, AUserFileWithoutAMarkIsKept) {
    WriteProtectProgram();
    fs::create_directories(user_);
    fs::permissions(user_, fs::perms(0777));
    WriteFile(userFile_, "charts");
    EXPECT_EQ(Find(), userFile_);
    EXPECT_EQ(BytesOf(userFile_), "charts");
    fs::remove(userFile_);
    EXPECT_EQ(Find(), userFile_);
    EXPECT_FALSE(fs::exists(userFile_));
}

TEST_F(DatabaseFileTest, AFailedCopyLeavesNothingAndIsTriedAgain) {
    const fs::path programFile = program_ / databaseFileName;
    const std::string seed = BytesOf(programFile);
    fs::permissions(programFile, fs::perms(0644));
    for (const std::string &damaged : {std::string("no database"), seed.substr(0, seed.size() / 2)}) {
        WriteFile(programFile, damaged);
        WriteProtectProgram();
        EXPECT_NE(ErrorOf([&] { Find(); }).find("is damaged"), std::string::npos);
        EXPECT_FALSE(fs::exists(user_));
        fs::permissions(program_, fs::perms(0755));
    }
    fs::remove(programFile);
    WriteProtectProgram();
    EXPECT_NE(ErrorOf([&] { Find(); }).find(programFile.string() + " is missing"), std::string::npos);

    fs::permissions(program_, fs::perms(0755));
    WriteFile(programFile, seed);
    WriteProtectProgram();
    fs::create_directories(user_);
    fs::permissions(user_, fs::perms(0555));
    EXPECT_NE(ErrorOf([&] { Find(); }).find(user_.string()), std::string::npos);
    EXPECT_TRUE(fs::is_empty(user_));
    fs::permissions(user_, fs::perms(0777));
    EXPECT_EQ(Find(), userFile_);
    EXPECT_TRUE(fs::exists(userFile_));
}

/// The step of the build that puts the seed database beside the program. Blanks and signs in the path must
/// not matter.
class PlaceDatabaseTest : public testing::Test {
protected:
    PlaceDatabaseTest() { fs::create_directory(build_); }

    void Place(std::string_view seed) {
        WriteFile(seed_, seed);
        const std::string command = std::string(KELVARO_CMAKE) + " -D 'SEED=" + seed_.string() +
                                    "' -D 'DATABASE=" + database_.string() +
                                    "' -D 'RECORD=" + (build_ / "record").string() +
                                    "' -P '" KELVARO_PLACE_DATABASE "' > /dev/null";
        ASSERT_EQ(std::system(command.c_str()), 0);
    }

    TemporaryFolder folder_;
    fs::path build_ = folder_ / "a build (1)";
    fs::path seed_ = build_ / "seed.mdb";
    fs::path database_ = build_ / databaseFileName;
};

TEST_F(PlaceDatabaseTest, ReplacesOnlyTheSeedOfAnEarlierBuild) {
    WriteFile(database_, "no build put it there");
    Place("first seed");
    EXPECT_EQ(BytesOf(database_), "no build put it there");
    fs::remove(database_);
    Place("first seed");
    EXPECT_EQ(BytesOf(database_), "first seed");
    Place("second seed");
    EXPECT_EQ(BytesOf(database_), "second seed");
    WriteFile(database_, "the user's charts");
    Place("second seed");
    Place("third seed");
    EXPECT_EQ(BytesOf(database_), "the user's charts");
    fs::remove(database_);
    Place("third seed");
    EXPECT_EQ(BytesOf(database_), "third seed");
}

TEST_F(PlaceDatabaseTest, KeepsADatabaseWhoseChangeWasBrokenOff) {
    Place("first seed");
    const fs::path journal = database_.string() + "-journal";
    WriteFile(journal, "journal");
    Place("second seed");
    EXPECT_EQ(BytesOf(database_), "first seed");
    EXPECT_TRUE(fs::exists(journal));
    fs::remove(database_);
    Place("second seed");
    EXPECT_EQ(BytesOf(database_), "second seed");
    EXPECT_FALSE(fs::exists(journal)) << "it would be played back into the new database";
}

class SeedDatabaseTest : public StoreTest {};

TEST_F(SeedDatabaseTest, HoldsEveryRow) {
    const std::pair<const char *, const char *> counts[] = {
        {"Country_Master", "246"},
        {"TimeZone", "375"},
        {"City_Master", "60398"},
        {"KaliyugaYearDetails", "60"},
        {"Preference", "1"},
        {"tempdasasandhi", "1"},
        {"ChartSave", "0"},
        {"GChartSave", "0"},
        {"PersonalDetails", "0"},
        {"tempBhukthi", "0"},
        {"KaliyugaYearDetails where Yearno between 1 and 60", "60"},
        {"chartsmaster", "4740"},
    };
    for (const auto &[rows, count] : counts) {
        EXPECT_EQ(First(std::string("select count(*) from ") + rows), count) << rows;
    }
    EXPECT_EQ(First("pragma user_version"), "1");
    EXPECT_EQ(First("pragma integrity_check"), "ok");
}

TEST_F(SeedDatabaseTest, StandsOnTheFirstPreferences) {
    EXPECT_EQ(First("select PreID || Ayanamsa || Bhava || DayInYear || ChartStyle || PreferLanguage || "
                    "CustomYear || CustomProgress from Preference"),
              "1LahiriEqual365.25SouthEnglish0.00.0");
}

TEST_F(SeedDatabaseTest, CountriesStandInTheOrderOfTheirNumbers) {
    int number = 0;
    for (const ListItem &country : PlaceLists(connection_).Countries()) {
        EXPECT_EQ(country.key, ++number);
    }
}

TEST_F(SeedDatabaseTest, BandsOfEveryChartCoverEveryRasi) {
    std::map<std::pair<std::string, int>, double> reached;
    Recordset rows;
    rows.Open("select * from chartsmaster order by chartname, RasiHouse, startDegree", connection_);
    for (; !rows.IsEndOfFile(); rows.MoveNext()) {
        double &degree = reached[{rows.Text("chartname"), rows.Integer("RasiHouse")}];
        EXPECT_EQ(rows.Number("startDegree"), degree) << rows.Text("chartname");
        degree = rows.Number("EndDegree");
    }
    EXPECT_EQ(reached.size(), 20U * 12U);
    for (const auto &[chartAndRasi, degree] : reached) {
        EXPECT_EQ(degree, 30.0) << chartAndRasi.first << chartAndRasi.second;
    }
}

} // namespace
} // namespace kelvaro::store
