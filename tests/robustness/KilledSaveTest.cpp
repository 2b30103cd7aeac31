// A program that is killed while it saves leaves whole charts.

#include "tests/horoscope/BirthEntryFixture.h"
#include "tests/robustness/ChartPairs.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <thread>

namespace kelvaro {
namespace {

using Microseconds = std::chrono::microseconds;

class KilledSaveTest : public BirthEntryTest {
protected:
    KilledSaveTest() {
        SavePair(1);
        // Without the rest of the gazetteer the checks after each kill are quick.
        connection_.Execute("delete from City_Master where CityName <> 'Hyderabad (A.P)'");
        connection_.Execute("vacuum");
        connection_.Close();
        std::filesystem::copy_file(file_, killedFile_);
    }

    void SavePair(int number) {
        SaveChartPair(number, entered_, connection_, settings_, [] {});
    }

    /// Ends a program that saves from a number on after that time of its work; gives how many charts it has
    /// told as saved.
    int KillAfter(Microseconds time, int first) {
        std::filesystem::remove(savedFile_);
        StartedProgram program(SAVING_PROGRAM, {"pairs", std::to_string(first)}, quick_.Path());
        for (int waits = 0; !std::filesystem::exists(savedFile_) && waits < 10'000; ++waits) {
            std::this_thread::sleep_for(Microseconds(100));
        }
        std::this_thread::sleep_for(time);
        EXPECT_TRUE(program.Kill()) << "a save failed by itself";
        return static_cast<int>(std::filesystem::file_size(savedFile_));
    }

    /// Opens the database and gives the number of its charts.
    int ChartsFound() {
        connection_.Open(killedFile_);
        EXPECT_EQ(First("pragma integrity_check"), "ok");
        const int charts = std::stoi(First("select count(*) from ChartSave"));
        EXPECT_EQ(First("select count(*) from ChartSave where Sno > 1 and ChartName = 'Person ' || Sno || "
                        "'~4-Jul-1965' and LatitudeMinute = Sno and TimeDifference = 181"),
                  std::to_string(charts - 1));
        EXPECT_EQ(First("select count(*) from ChartSave where Sno = 1 and ChartName = 'First~04-Jul-1965' "
                        "and length(City) = cast(LatitudeMinute as integer) % 4 * 3000 + 1"),
                  "1");
        connection_.Close();
        return charts;
    }

    // On a disk nearly all of a save is waiting for the disk, and few kills would fall between two writes.
    TemporaryFolder quick_{QuickFolder()};
    std::filesystem::path killedFile_ = quick_ / store::databaseFileName;
    std::filesystem::path savedFile_ = quick_ / "saved";
    BirthFields entered_ = Entered();
};

TEST_F(KilledSaveTest, LeavesWholeChartsOnly) {
    connection_.Open(killedFile_);
    const auto start = std::chrono::steady_clock::now();
    SavePair(2);
    const auto onePair = std::chrono::duration_cast<Microseconds>(std::chrono::steady_clock::now() - start);
    connection_.Close();
    std::minstd_rand random(7); // NOLINT(cert-msc51-cpp): a failure can be repeated
    std::uniform_int_distribution<Microseconds::rep> time(
        0, std::min<Microseconds::rep>(3 * onePair.count() / 2, 60'000));
    int charts = ChartsFound();
    for (int round = 0; round < 200; ++round) {
        const int told = charts + KillAfter(Microseconds(time(random)), charts + 1);
        // The last chart may be in without its program having told it.
        charts = ChartsFound();
        ASSERT_TRUE(charts == told || charts == told + 1) << charts << " of " << told;
        ASSERT_FALSE(HasFailure()) << "in round " << round;
    }
    EXPECT_GT(charts, 20) << "most kills came before anything was saved";
}

} // namespace
} // namespace kelvaro
