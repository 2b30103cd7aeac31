// Two copies of the program at work on one database: nothing that was reported as saved is lost.

#include "tests/store/StoreFixture.h"

#include <array>
#include <string>

namespace kelvaro {
namespace {

using TwoProgramsTest = store::StoreTest;

TEST_F(TwoProgramsTest, KeepAllThatBothSaved) {
    const std::string charts = "40";
    connection_.Close();
    std::array<StartedProgram, 2> programs{{{SAVING_PROGRAM, {"charts", "Uma", charts}, folder_.Path()},
                                            {SAVING_PROGRAM, {"charts", "Ravi", charts}, folder_.Path()}}};
    for (StartedProgram &program : programs) {
        EXPECT_EQ(program.Wait(), 0);
    }
    connection_.Open(file_);
    EXPECT_EQ(First("pragma integrity_check"), "ok");
    for (const char *name : {"Uma", "Ravi"}) {
        // Name, date as typed and minute belong together in every row.
        const std::string mine = std::string(name) + "' || ChartMinute || '~04-Jul-1965'";
        EXPECT_EQ(First("select count(distinct ChartMinute) from ChartSave where ChartName = '" + mine),
                  charts)
            << name;
    }
    EXPECT_EQ(First("select count(*) from ChartSave"), "80");
}

} // namespace
} // namespace kelvaro
