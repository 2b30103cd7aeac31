// Settings that hold garbage: the program starts with the sample chart, or says why it computes none.

#include "horoscope/CalculateHoroscope.h"
#include "tests/horoscope/HoroscopeFixture.h"
#include "tests/horoscope/MemorySettings.h"

#include <cmath>
#include <string>

namespace kelvaro {
namespace {

constexpr std::array keys{"Name",     "Day",   "Month",  "Year",    "Hour",     "Min",
                          "TimeZone", "Sex",   "City",   "Country", "LatNS",    "LatMin",
                          "LatDeg",   "LonEW", "LonMin", "LonDeg",  "TimeDiff", "TimeDiffEW"};

class GarbledSettingsTest : public HoroscopeTest {
protected:
    /// Starts with these settings; returns what is said.
    std::string Start() {
        std::string words = RestoreLastChart(settings, horoscope.state);
        display.failure.clear();
        CalculateHoroscope(horoscope);
        return words + display.failure;
    }

    MemorySettings settings;
};

TEST_F(GarbledSettingsTest, GarbageInEveryKeyGivesTheSampleChartWithAWord) {
    using namespace std::string_literals;
    for (const std::string &garbage :
         {""s, " "s, "\0\x01\xff\xfe"s, "@Invalid()"s, "-1"s, "1e308"s, "nan"s, "0"s, "99999999999999999999"s,
          "'; drop table ChartSave; --"s, std::string(1'000'000, '7')}) {
        for (const char *key : keys) {
            settings.values[key] = garbage;
        }
        horoscope.state.ChartName = "another";
        EXPECT_NE(Start(), "") << garbage.substr(0, 40);
        EXPECT_EQ(horoscope.state.ChartName, "Velnesh");
        EXPECT_EQ(display.failure, "") << "the sample chart is computed";
    }
}

TEST_F(GarbledSettingsTest, NumbersFromOutsideTheWorldAreComputedOrRefusedInWords) {
    for (const char *key : {"LatDeg", "LatMin", "LonDeg", "LonMin", "TimeDiff"}) {
        for (const char *number : {"1e308", "-1e308", "1e15", "-1e9", "91", "-91", "4e-324", "8760000"}) {
            SCOPED_TRACE(std::string(key) + " = " + number);
            settings.values = {{key, number}};
            if (Start().empty()) {
                EXPECT_TRUE(std::isfinite(horoscope.state.LagnaLon));
                EXPECT_TRUE(std::isfinite(horoscope.state.MoonLon));
                EXPECT_TRUE(std::isfinite(horoscope.state.MandiMoment.Serial()));
            }
            settings.values.clear();
            EXPECT_EQ(Start(), "") << "the next chart is computed";
        }
    }
}

} // namespace
} // namespace kelvaro
