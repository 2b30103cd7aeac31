#include "panchanga/day/clsTimes.h"

#include "runtime/MomentText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace kelvaro {
namespace {

/// 2023-01-01 was a Sunday.
clsTimes Found(int day, const CivilClock &sunrise, const CivilClock &sunset, const CivilClock &nextSunrise) {
    clsTimes times;
    times.currentdate = MomentOf({2023, 1, day});
    times.Sunrisetime = MomentOf({2023, 1, day}, sunrise);
    times.Sunsettime = MomentOf({2023, 1, day}, sunset);
    times.SunRiseNexttime = MomentOf({2023, 1, day + 1}, nextSunrise);
    times.findtimes();
    return times;
}

clsTimes FoundAtEquinox(int day) {
    return Found(day, {6, 0, 0}, {18, 0, 0}, {6, 0, 0});
}

TEST(ClsTimes, WeekdayTableOnATwelveHourDay) {
    struct Case {
        const char *rahukaal, *gulikaDay, *gulikaNight, *mandiDay, *mandiNight;
    };
    // Eighths of 1 h 30 min, thirtieths of 24 min, from 06:00 and 18:00; Sunday first.
    constexpr std::array<Case, 7> cases{{
        {"16:30:00", "16:30:00", "22:30:00", "16:24:00", "22:00:00"},
        {"07:30:00", "15:00:00", "21:00:00", "14:48:00", "20:24:00"},
        {"15:00:00", "13:30:00", "19:30:00", "13:12:00", "18:48:00"},
        {"12:00:00", "12:00:00", "04:30:00", "11:36:00", "04:24:00"},
        {"13:30:00", "10:30:00", "03:00:00", "10:00:00", "02:48:00"},
        {"10:30:00", "09:00:00", "01:30:00", "08:24:00", "01:12:00"},
        {"09:00:00", "07:30:00", "00:00:00", "06:48:00", "23:36:00"},
    }};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const clsTimes times = FoundAtEquinox(static_cast<int>(i) + 1);
        EXPECT_EQ(TimingText(times.RahukaalStart), cases.at(i).rahukaal);
        EXPECT_EQ(TimingText(times.GulikaRise_Day), cases.at(i).gulikaDay);
        EXPECT_EQ(TimingText(times.GulikaRise_Night), cases.at(i).gulikaNight);
        EXPECT_EQ(TimingText(times.MandiRise_Day), cases.at(i).mandiDay);
        EXPECT_EQ(TimingText(times.MandiRise_Night), cases.at(i).mandiNight);
        EXPECT_EQ(times.RahukaalEnd, DateAdd(Interval::Minute, 90, times.RahukaalStart));
        EXPECT_EQ(times.GulikaStart_Day, DateAdd(Interval::Minute, -90, times.GulikaRise_Day));
        EXPECT_EQ(times.GulikaStart_Night, DateAdd(Interval::Minute, -90, times.GulikaRise_Night));
    }
}

TEST(ClsTimes, SundayPeriodsStayOnOtherDays) {
    clsTimes times = FoundAtEquinox(1);
    times.currentdate = MomentOf({2023, 1, 2});
    times.Sunrisetime = MomentOf({2023, 1, 2}, {7, 0, 0});
    times.Sunsettime = MomentOf({2023, 1, 2}, {19, 0, 0});
    times.SunRiseNexttime = MomentOf({2023, 1, 3}, {7, 0, 0});
    times.findtimes();
    EXPECT_EQ(TimingText(times.vaarvelaStart), "10:30:00");
    EXPECT_EQ(TimingText(times.kaalvelaStart), "12:00:00");
    EXPECT_EQ(TimingText(times.yamaghanta2Start_Day), "12:00:00");
    EXPECT_EQ(TimingText(times.ArdhayamaEnd_Day), "12:00:00");
    EXPECT_EQ(TimingText(times.Kantaka2Start_Day), "09:00:00");
    EXPECT_EQ(TimingText(times.KaalratriStart), "01:30:00");
    EXPECT_EQ(TimingText(times.KaalratriEnd), "03:00:00");
    EXPECT_EQ(TimingText(times.RahukaalStart), "08:30:00");
}

// A day of 41412 s: the eighth is 5176.5, so 5176; the twelfth 3450.67, so 3451; the fifteenth 2760.53, so
// 2761; the thirtieth 1380.27, so 1380. A night of 44996 s: the eighth is 5624.5, so 5624, and its thirtieth
// 1499.73, so 1500.
TEST(ClsTimes, PartsAreRoundedSecondsOfTheRoundedEighth) {
    const clsTimes times = Found(1, {6, 10, 0}, {17, 40, 12}, {6, 10, 8});
    EXPECT_EQ(TimingText(times.RahukaalStart), "16:13:52");
    EXPECT_EQ(TimingText(times.MandiRise_Day), "16:08:00");
    EXPECT_EQ(TimingText(times.GulikaRise_Night), "22:21:24");
    EXPECT_EQ(TimingText(times.MandiRise_Night), "21:50:12");
    EXPECT_TRUE(times.HoraEnd_DayTemp.ends_with("~17:40:12"));
    EXPECT_TRUE(times.HoraStart_DayTemp.starts_with("06:10:00~07:07:31~"));
    EXPECT_TRUE(times.DoGhatiMuhurtaEnd_Temp.starts_with("06:56:01~07:42:02~"));
    // Fifteen such parts miss sunset by three seconds.
    EXPECT_NE(times.DoGhatiMuhurtaEnd_Temp.find("~17:40:15~"), std::string::npos);
}

TEST(ClsTimes, HorasOfASunday) {
    const clsTimes times = FoundAtEquinox(1);
    EXPECT_EQ(times.HoraName_DayTemp,
              "Sunday~Friday~Wednesday~Monday~Saturday~Thursday~Tuesday~Sunday~Friday~"
              "Wednesday~Monday~Saturday");
    EXPECT_EQ(times.HoraName_NightTemp, "Thursday~Tuesday~Sunday~Friday~Wednesday~Monday~Saturday~Thursday~"
                                        "Tuesday~Sunday~Friday~Wednesday");
    EXPECT_EQ(times.HoraEnd_NightTemp,
              "19:00:00~20:00:00~21:00:00~22:00:00~23:00:00~00:00:00~01:00:00~02:00:00~"
              "03:00:00~04:00:00~05:00:00~06:00:00");
}

TEST(ClsTimes, MuhurtasOfDayAndNight) {
    const clsTimes times = FoundAtEquinox(3);
    const std::string &names = times.DoGhatiMuhurtaName_Temp;
    EXPECT_TRUE(names.starts_with("Rudra/Aridra~Sarpa/Ashlesha~")) << names;
    EXPECT_NE(names.find("~Bhaga/PoorvaPalguni~Rudra/Aridra~Ajpad/Poorvabhadra~"), std::string::npos)
        << names;
    EXPECT_TRUE(names.ends_with("~Vishvakarma/Chitra~Pawan/Swati")) << names;
    EXPECT_EQ(std::count(names.begin(), names.end(), '~'), 29);
    EXPECT_NE(times.DoGhatiMuhurtaStart_Temp.find("~17:12:00~18:00:00~18:48:00~"), std::string::npos);
    EXPECT_TRUE(times.DoGhatiMuhurtaEnd_Temp.ends_with("~05:12:00~06:00:00"));
}

} // namespace
} // namespace kelvaro
