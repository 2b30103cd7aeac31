#include "clock/ZoneRecords.h"

#include "system/System.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

namespace kelvaro {
namespace {

using namespace std::chrono;

local_seconds At(year_month_day day, minutes clock) {
    return local_days{day} + clock;
}

std::string ContentOf(const char *zone) {
    std::ifstream file(ZoneRecordsFolder() / zone, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Every period begins where the one before ends and differs from it.
bool AreInOrder(const ZonePeriods &periods) {
    for (std::size_t i = 1; i < periods.size(); ++i) {
        const ZonePeriod &before = periods[i - 1];
        const ZonePeriod &each = periods[i];
        if (before.end != each.begin || before.begin > before.end ||
            (before.fromGreenwich == each.fromGreenwich && before.isMarked == each.isMarked &&
             before.abbreviation == each.abbreviation)) {
            return false;
        }
    }
    return !periods.empty();
}

TEST(ZoneRecords, FindTimesThatWereShownOnceTwiceAndNever) {
    const auto samoa = ReadZonePeriods(ZoneRecordsFolder(), "Pacific/Apia");
    const auto chicago = ReadZonePeriods(ZoneRecordsFolder(), "America/Chicago");
    ASSERT_TRUE(samoa && chicago && AreInOrder(*samoa) && AreInOrder(*chicago));
    // Samoa went over to the other side of the date line and left a whole day out.
    const PeriodsOfTime leftOut = FindPeriods(*samoa, At(2011y / 12 / 30, 12h));
    EXPECT_FALSE(leftOut.isShown);
    EXPECT_EQ((*samoa)[leftOut.first].fromGreenwich, -10h);
    EXPECT_EQ((*samoa)[leftOut.last].fromGreenwich, 14h);
    EXPECT_TRUE(FindPeriods(*samoa, At(2011y / 12 / 29, 24h - 1min)).isShown);
    EXPECT_TRUE(FindPeriods(*samoa, At(2011y / 12 / 31, 0min)).isShown);
    const PeriodsOfTime twice = FindPeriods(*chicago, At(1990y / 10 / 28, 1h + 30min));
    EXPECT_TRUE(twice.isShown);
    EXPECT_EQ((*chicago)[twice.first].abbreviation, "CDT");
    EXPECT_EQ((*chicago)[twice.last].abbreviation, "CST");
    const PeriodsOfTime first = FindPeriods(*chicago, At(1800y / 1 / 1, 0min));
    EXPECT_EQ((*chicago)[first.first].abbreviation, "LMT");
    EXPECT_EQ(first.first, first.last);
}

/// The content of a file with the first of its changes only, as those of the slim form are.
std::string WithFirstChanges(std::string content, std::size_t kept) {
    const std::size_t header = content.find("TZif", 4);
    const std::size_t times = header + 44;
    const auto byte = [&](std::size_t place) {
        return std::size_t{static_cast<unsigned char>(content[header + place])};
    };
    const std::size_t changes = byte(34) << 8U | byte(35);
    content.erase(times + 8 * changes + kept, changes - kept);
    content.erase(times + 8 * kept, 8 * (changes - kept));
    content[header + 34] = '\0';
    content[header + 35] = static_cast<char>(kept);
    return content;
}

TEST(ZoneRecords, AreNoneInAFileThatLeavesYearsToARule) {
    EXPECT_FALSE(ZonePeriodsIn(WithFirstChanges(ContentOf("America/Chicago"), 180)));
    const auto kolkata = ZonePeriodsIn(WithFirstChanges(ContentOf("Asia/Kolkata"), 3));
    ASSERT_TRUE(kolkata) << "no rule follows";
    EXPECT_TRUE(AreInOrder(*kolkata));
}

TEST(ZoneRecords, AreNoneInADamagedFile) {
    const std::string sound = ContentOf("America/Chicago");
    ASSERT_TRUE(ZonePeriodsIn(sound));
    const std::size_t lastLine = sound.rfind('\n', sound.size() - 2);
    for (std::size_t length = 0; length < lastLine; length += 7) {
        // The marks behind the changes are not needed.
        const auto periods = ZonePeriodsIn(std::string_view(sound).substr(0, length));
        EXPECT_TRUE(!periods || length > lastLine / 2) << length;
    }
    std::minstd_rand random(5); // NOLINT(cert-msc51-cpp): a failure can be repeated
    for (int round = 0; round < 20'000; ++round) {
        std::string damaged = sound;
        // Mostly in the two headers, where a byte means most.
        damaged[random() % (round % 2 == 0 ? 44 : damaged.size())] = static_cast<char>(random());
        const auto periods = ZonePeriodsIn(damaged);
        EXPECT_TRUE(!periods || AreInOrder(*periods)) << round;
    }
    EXPECT_FALSE(ReadZonePeriods(ZoneRecordsFolder(), ""));
    EXPECT_FALSE(ReadZonePeriods(ZoneRecordsFolder(), "tzdata.zi"));
}

} // namespace
} // namespace kelvaro
