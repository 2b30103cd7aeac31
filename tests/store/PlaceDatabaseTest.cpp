#include "tests/store/StoreFixture.h"

#include <cstdlib>

namespace kelvaro::store {
namespace {

namespace fs = std::filesystem;

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

} // namespace
} // namespace kelvaro::store
