#include "store/database/DatabaseFile.h"

#include "tests/store/StoreFixture.h"

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

} // namespace
} // namespace kelvaro::store
