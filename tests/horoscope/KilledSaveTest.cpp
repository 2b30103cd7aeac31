#include "tests/horoscope/BirthEntryFixture.h"

#include <sys/mman.h>
#include <sys/wait.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

namespace kelvaro {
namespace {

using Microseconds = std::chrono::microseconds;

/// What a process that is killed has got done, as its parent sees it.
struct Progress {
    std::atomic<bool> isAtWork = false;
    std::atomic<int> saved = 0;
};

class KilledSaveTest : public BirthEntryTest {
protected:
    KilledSaveTest() {
        SaveNext(connection_, 1);
        // Without the gazetteer the checks after each kill are quick.
        connection_.Execute("delete from City_Master");
        connection_.Execute("vacuum");
        connection_.Close();
        std::filesystem::copy_file(file_, killedFile_);
    }

    /// Saves a new chart and then writes over the first one, both marked with the number. The longer text
    /// spreads the first chart over several pages of the file.
    void SaveNext(store::Connection &connection, int number) {
        BirthFields next = entered_;
        next.Txt_VC_ChartName = "Person " + std::to_string(number);
        next.txt_VC_LatMin = number;
        SaveBirth(next, connection, settings_);
        progress_.saved = number;
        next.txt_VC_UserId = 1;
        next.Txt_VC_ChartName = "First";
        next.txt_VC_City = next.chosen.city =
            std::string(static_cast<std::size_t>(number % 4) * 3000 + 1, 'x');
        SaveBirth(next, connection, settings_);
    }

    /// Saves chart after chart until it is killed.
    void SaveForEver() {
        store::Connection connection;
        connection.Open(killedFile_);
        progress_.isAtWork = true;
        while (true) {
            SaveNext(connection, progress_.saved + 1);
        }
    }

    /// Ends a process that saves after that time of its work.
    void KillAfter(Microseconds time) {
        progress_.isAtWork = false;
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            try {
                SaveForEver();
            } catch (...) {
                _exit(1);
            }
        }
        for (int waits = 0; !progress_.isAtWork && waits < 10'000; ++waits) {
            std::this_thread::sleep_for(Microseconds(100));
        }
        std::this_thread::sleep_for(time);
        kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed by itself";
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
    BirthFields entered_ = Entered();
    Progress &progress_ = *new (
        mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) Progress;
};

TEST_F(KilledSaveTest, LeavesWholeChartsOnly) {
    connection_.Open(killedFile_);
    const auto start = std::chrono::steady_clock::now();
    SaveNext(connection_, 2);
    const auto oneSave = std::chrono::duration_cast<Microseconds>(std::chrono::steady_clock::now() - start);
    connection_.Close();
    std::minstd_rand random(7); // NOLINT(cert-msc51-cpp): a failure can be repeated
    std::uniform_int_distribution<Microseconds::rep> time(
        0, std::min<Microseconds::rep>(3 * oneSave.count() / 2, 60'000));
    for (int round = 0; round < 200; ++round) {
        const int before = progress_.saved;
        ASSERT_NO_FATAL_FAILURE(KillAfter(Microseconds(time(random))));
        // The last chart may be in without its process having learnt it.
        const int saved = progress_.saved;
        const int found = ChartsFound();
        ASSERT_GE(saved, before);
        ASSERT_TRUE(found == saved || found == saved + 1) << found << " of " << saved;
        ASSERT_FALSE(HasFailure()) << "in round " << round;
        progress_.saved = found;
    }
    EXPECT_GT(progress_.saved, 20) << "most kills came before anything was saved";
}

} // namespace
} // namespace kelvaro
