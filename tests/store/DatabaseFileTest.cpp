#include "store/database/DatabaseFile.h"

#include "runtime/Paths.h"
#include "store/masters/PlaceLists.h"
#include "tests/store/StoreFixture.h"

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
    ~DatabaseFileTest() override { OpenFolder(program_); }

    void SetUp() override {
        if (!HoldsWriteProtection()) {
            GTEST_SKIP() << "this user can write everywhere";
        }
    }

    /// Some systems remove no write-protected file.
    void RemoveProgramFile() {
        fs::permissions(program_ / databaseFileName, fs::perms(0666));
        fs::remove(program_ / databaseFileName);
    }
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
    OpenFolder(program_);
    RemoveProgramFile();
    EXPECT_EQ(Find(), program_ / databaseFileName);
    EXPECT_TRUE(fs::is_empty(program_));
    EXPECT_FALSE(fs::exists(user_));
}

TEST_F(DatabaseFileTest, IsCopiedOnceFromAProgramThatCannotBeWritten) {
    ProtectFolder(program_);
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
    OpenFolder(program_);
    WriteFile(program_ / "DBMirvaneBasic.original", "");
    EXPECT_EQ(Find(), userFile_);
    EXPECT_TRUE(fs::remove(userFile_));
    EXPECT_EQ(Find(), userFile_);
    EXPECT_FALSE(fs::exists(userFile_)) << "that the charts are lost must not be hidden";
}

TEST_F(DatabaseFileTest, AUserFileWithoutAMarkIsKept) {
    ProtectFolder(program_);
    fs::create_directories(user_);
    OpenFolder(user_);
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
        ProtectFolder(program_);
        EXPECT_NE(ErrorOf([&] { Find(); }).find("is damaged"), std::string::npos);
        EXPECT_FALSE(fs::exists(user_));
        OpenFolder(program_);
    }
    RemoveProgramFile();
    ProtectFolder(program_);
    EXPECT_NE(ErrorOf([&] { Find(); }).find(TextOfPath(programFile) + " is missing"), std::string::npos);

    OpenFolder(program_);
    WriteFile(programFile, seed);
    ProtectFolder(program_);
    fs::create_directories(user_);
    ProtectFolder(user_);
    EXPECT_NE(ErrorOf([&] { Find(); }).find(TextOfPath(user_)), std::string::npos);
    EXPECT_TRUE(fs::is_empty(user_));
    OpenFolder(user_);
    EXPECT_EQ(Find(), userFile_);
    EXPECT_TRUE(fs::exists(userFile_));
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
