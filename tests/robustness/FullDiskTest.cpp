// Saving charts until no more can be written: the error is told and all earlier charts are there.

#include "horoscope/CalculateHoroscope.h"
#include "store/charts/ChartStore.h"
#include "tests/horoscope/BirthEntryFixture.h"

#include <sys/resource.h>

#include <csignal>

namespace kelvaro {
namespace {

namespace fs = std::filesystem;

/// Lets this process write no file beyond a size.
void LimitFileSize(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
        throw std::runtime_error("File sizes cannot be limited");
    }
}

/// The work is done in a process of its own, which ends with 0 where all went as it should.
class FullDiskTest : public BirthEntryTest {
protected:
    FullDiskTest() {
        Save(first_);
        // Without the gazetteer the database is small.
        connection_.Execute("delete from City_Master");
        connection_.Execute("vacuum");
        connection_.Close();
    }

    static void Require(bool holds, const std::string &what) {
        if (!holds) {
            fprintf(stderr, "Not so: %s\n", what.c_str());
            _exit(1);
        }
    }

    /// Saves new charts with long texts until one is refused; returns why.
    static std::string SaveUntilRefused(const BirthFields &entered, store::Connection &connection,
                                        SettingsStore &settings, int &saved) {
        for (; saved < 2000; ++saved) {
            BirthFields next = entered;
            next.txt_VC_UserId = 0;
            next.txt_VC_City = next.chosen.city = std::string(2000, 'x');
            const BirthFields typed = next;
            std::string refusal = store::ErrorOf([&] { SaveBirth(next, connection, settings); });
            if (!refusal.empty()) {
                Require(next == typed, "a refused save leaves the form as it was");
                return refusal;
            }
        }
        return {};
    }

    /// Fills the disk with charts, then tries everything else that writes.
    [[noreturn]] void FillUp(const fs::path &file) {
        constexpr const char *words = "cannot be read or written";
        store::Connection connection;
        connection.Open(file);
        int saved = 0;
        const std::string refusal = SaveUntilRefused(first_, connection, settings_, saved);
        Require(refusal.find(words) != std::string::npos, "\"" + refusal + "\" tells: " + words);

        BirthFields longer = first_;
        longer.txt_VC_City = longer.chosen.city = std::string(100'000, 'y');
        Require(!store::ErrorOf([&] { SaveBirth(longer, connection, settings_); }).empty(),
                "a chart that grows is refused");
        RecordingDisplay display;
        Horoscope horoscope(connection, display);
        for (int runs = 0; runs < 200 && display.failure.empty(); ++runs) {
            CalculateHoroscope(horoscope);
        }
        Require(display.failedStep == "Dasa" && display.failure.find(words) != std::string::npos,
                display.failedStep + ": " + display.failure);
        Require(Charts(connection) == std::to_string(1 + saved), "what was saved is there");
        connection.Close();
        connection.Open(file);
        Require(Charts(connection) == std::to_string(1 + saved), "what was saved is there after a new start");
        Require(store::FirstText("pragma integrity_check", connection) == "ok", "the database is sound");
        _exit(0);
    }

    static std::string Charts(store::Connection &connection) {
        return store::FirstText("select count(*) from ChartSave where ChartName = 'Velnesh~4-Jul-1965' and "
                                "City in ('Hyderabad (A.P)', replace(hex(zeroblob(1000)), '0', 'x'))",
                                connection);
    }

    BirthFields first_ = Entered();
};

TEST_F(FullDiskTest, AFileThatMayNotGrowKeepsItsCharts) {
    const std::size_t size = fs::file_size(file_);
    // The smallest lets not even the journal be written.
    for (const std::size_t limit :
         {std::size_t{512}, std::size_t{6000}, size, size + 20'000, size + 300'000}) {
        EXPECT_EXIT(
            {
                const fs::path file = folder_ / std::to_string(limit);
                fs::copy_file(file_, file);
                LimitFileSize(limit);
                FillUp(file);
            },
            testing::ExitedWithCode(0), "")
            << limit;
    }
}

TEST_F(FullDiskTest, AFirstStartWithoutRoomLeavesNothing) {
    store::WriteFile(folder_ / "DBMirvaneBasic.original", "");
    const fs::path user = folder_ / "user";
    const std::size_t size = fs::file_size(file_);
    for (const std::size_t limit : {std::size_t{512}, size / 2}) {
        EXPECT_EXIT(
            {
                LimitFileSize(limit);
                const std::string refusal =
                    store::ErrorOf([&] { store::FindDatabaseFile(folder_.Path(), user / "kelvaro"); });
                Require(refusal.find("the disk of that folder is full") != std::string::npos, refusal);
                Require(refusal.find(user.string()) != std::string::npos, refusal);
                Require(!fs::exists(user), "nothing is left");
                _exit(0);
            },
            testing::ExitedWithCode(0), "")
            << limit;
    }
}

} // namespace
} // namespace kelvaro
