// Two copies of the program at work on one database: nothing that was reported as saved is lost.

#include "store/charts/ChartStore.h"
#include "tests/horoscope/BirthEntryFixture.h"

#include <sys/wait.h>

#include <array>
#include <string>

namespace kelvaro {
namespace {

constexpr int rounds = 40;

class TwoProgramsTest : public BirthEntryTest {
protected:
    /// A new chart of that name; the other copy may keep the database for longer than is waited for.
    static void SaveUntilTaken(BirthFields &fields, store::Connection &connection, SettingsStore &settings) {
        for (int tries = 1;; ++tries) {
            try {
                SaveBirth(fields, connection, settings);
                return;
            } catch (const store::StoreError &error) {
                if (std::string(error.what()).find("is locked by another program") == std::string::npos ||
                    tries == 20) {
                    throw;
                }
            }
        }
    }

    /// Saves charts and changes each of them at once, computing a horoscope now and then; each chart must
    /// still be its own.
    void WorkAs(const std::string &name) {
        store::Connection connection;
        connection.Open(file_);
        RecordingDisplay display;
        Horoscope horoscope(connection, display);
        for (int round = 0; round < rounds; ++round) {
            BirthFields fields = entered_;
            fields.Txt_VC_ChartName = name + std::to_string(round);
            SaveUntilTaken(fields, connection, settings_);
            fields.cbMins = std::to_string(round);
            SaveUntilTaken(fields, connection, settings_);
            if (round % 20 == 0) {
                AcceptBirth(fields, horoscope);
            }
        }
    }

    pid_t Start(const std::string &name) {
        connection_.Close();
        const pid_t child = fork();
        if (child == 0) {
            try {
                WorkAs(name);
                _exit(0);
            } catch (const std::exception &error) {
                fprintf(stderr, "%s: %s\n", name.c_str(), error.what());
                _exit(1);
            }
        }
        return child;
    }

    BirthFields entered_ = Entered();
};

TEST_F(TwoProgramsTest, KeepAllThatBothSaved) {
    const std::array<pid_t, 2> programs{Start("Uma"), Start("Ravi")};
    for (const pid_t program : programs) {
        int status = -1;
        ASSERT_EQ(waitpid(program, &status, 0), program);
        EXPECT_EQ(status, 0);
    }
    connection_.Open(file_);
    EXPECT_EQ(First("pragma integrity_check"), "ok");
    for (const char *name : {"Uma", "Ravi"}) {
        // Name, date as typed and minute belong together in every row.
        const std::string mine = std::string(name) + "' || ChartMinute || '~04-Jul-1965'";
        EXPECT_EQ(First("select count(distinct ChartMinute) from ChartSave where ChartName = '" + mine),
                  std::to_string(rounds))
            << name;
    }
    EXPECT_EQ(First("select count(*) from ChartSave"), std::to_string(2 * rounds));
}

} // namespace
} // namespace kelvaro
