#include "horoscope/entry/LastChart.h"

#include "horoscope/entry/BirthEntry.h"
#include "horoscope/record/HoroscopeState.h"
#include "runtime/MomentText.h"
#include "runtime/Texts.h"
#include "tests/horoscope/MemorySettings.h"

#include <gtest/gtest.h>

#include <vector>

namespace kelvaro {
namespace {

BirthFields BirthInRio() {
    BirthFields fields = FieldsAtLoad(MomentOf({2000, 2, 29}, {0, 5, 0}));
    fields.Txt_VC_ChartName = "Uma O'Brien";
    fields.cbGender = "Female";
    fields.txt_VC_Country = "Brazil";
    fields.txt_VC_City = "Rio de Janeiro";
    TakePlace({22, 54.5, "S", 43, 12, "W"}, fields);
    TakeZone({"Brasilia Time", "Brasilia Time  (3 hrs W)", 1, 3, "W"}, fields);
    return fields;
}

/// The birth as one line.
std::string BirthIn(const HoroscopeState &state) {
    const BirthDetails &birth = state.birth;
    return birth.ChartName + ", " + birth.BirthGender + ", " + birth.BirthDay + " " + birth.BirthMonth + " " +
           birth.BirthYear + " " + birth.BirthHour + ":" + birth.BirthMinute + " (" +
           MomentText(birth.BirthMoment) + "), " + birth.BirthCity + ", " + birth.BirthCountry +
           birth.BirthTimeZoneName;
}

constexpr const char *sampleBirth =
    "Velnesh, Male, 14 Jul 1965 14:15 (14/07/1965 02:15 PM), Hyderabad (A.P), India";

TEST(LastChartTest, NothingKeptGivesTheSampleChart) {
    MemorySettings settings;
    HoroscopeState state;
    state.preferences.AyanamsaName = "Raman";
    state.birth.ChartName = "another";
    state.site = {};
    EXPECT_EQ(RestoreLastChart(settings, state), "");
    EXPECT_EQ(BirthIn(state), sampleBirth);
    EXPECT_EQ(state.site, sampleSite);
    EXPECT_EQ(state.preferences.AyanamsaInForce, "Raman");

    settings.values["Name"] = "Ravi";
    EXPECT_EQ(RestoreLastChart(settings, state), "");
    EXPECT_EQ(BirthIn(state), std::string("Ravi") + (sampleBirth + 7)) << "each key has a default of its own";
}

TEST(LastChartTest, ComesBackAsItWasKept) {
    MemorySettings settings;
    KeepLastChart(LastChartOf(BirthInRio()), settings);
    EXPECT_EQ(settings.values.size(), 18U);
    EXPECT_EQ(settings.values["Hour"], "0");
    EXPECT_EQ(settings.values["LatMin"], "54.5");
    EXPECT_EQ(settings.values["TimeZone"], "Brasilia Time  (3 hrs W)");
    HoroscopeState state;
    EXPECT_EQ(RestoreLastChart(settings, state), "");
    EXPECT_EQ(BirthIn(state),
              "Uma O'Brien, Female, 29 Feb 2000 0:05 (29/02/2000 12:05 AM), Rio de Janeiro, Brazil");
    EXPECT_EQ(state.site, (Site{22, 54.5, "S", 43, 12, "W", 3, "W"}));
}

TEST(LastChartTest, TextsAreNoLongerThanALine) {
    MemorySettings settings;
    for (const char *key : {"Name", "City", "Country", "Sex"}) {
        settings.values[key] = std::string(1'000'000, 'x') + "\n";
    }
    HoroscopeState state;
    EXPECT_EQ(RestoreLastChart(settings, state), "");
    const std::string line = std::string(254, 'x') + "…";
    EXPECT_EQ(state.birth.ChartName, line);
    EXPECT_EQ(state.birth.BirthCity + state.birth.BirthCountry + state.birth.BirthGender, line + line + line);
}

TEST(LastChartTest, UnreadableKeyGivesTheSampleChartAsAWhole) {
    const std::string tooLong = std::string(longestName, '0') + "1";
    const char *const cases[][2] = {{"Day", "30"},        {"Hour", "24"},          {"LatDeg", "north"},
                                    {"LatMin", ""},       {"LatNS", "NS"},         {"LonDeg", "nan"},
                                    {"LonMin", "1e9999"}, {"LonEW", "e"},          {"TimeDiff", "3,5"},
                                    {"TimeDiffEW", ""},   {"LatDeg", "90"},        {"LatDeg", "-1"},
                                    {"LatMin", "60"},     {"LonDeg", "180"},       {"TimeDiff", "14.5"},
                                    {"TimeDiff", "-1"},   {"Day", tooLong.c_str()}};
    for (const auto &[key, value] : cases) {
        MemorySettings settings;
        KeepLastChart(LastChartOf(BirthInRio()), settings);
        settings.values[key] = value;
        HoroscopeState state;
        EXPECT_NE(RestoreLastChart(settings, state), "") << key << value;
        EXPECT_EQ(BirthIn(state), sampleBirth) << key << value;
    }
}

} // namespace
} // namespace kelvaro
