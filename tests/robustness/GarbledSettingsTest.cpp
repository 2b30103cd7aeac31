// Settings that hold numbers without sense: the program computes the chart, or says why it computes none.

#include "horoscope/CalculateHoroscope.h"
#include "tests/horoscope/HoroscopeFixture.h"
#include "tests/horoscope/MemorySettings.h"

#include <cmath>
#include <string>

namespace kelvaro {
namespace {

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

TEST_F(GarbledSettingsTest, NumbersFromOutsideTheWorldAreComputedOrRefusedInWords) {
    for (const char *key : {"LatDeg", "LatMin", "LonDeg", "LonMin", "TimeDiff"}) {
        for (const char *number : {"1e308", "-1e308", "1e15", "-1e9", "91", "-91", "4e-324", "8760000"}) {
            SCOPED_TRACE(std::string(key) + " = " + number);
            settings.values = {{key, number}};
            if (Start().empty()) {
                EXPECT_TRUE(std::isfinite(horoscope.state.positions.LagnaLon));
                EXPECT_TRUE(std::isfinite(horoscope.state.positions.MoonLon));
                EXPECT_TRUE(std::isfinite(horoscope.state.day.MandiMoment.Serial()));
            }
            settings.values.clear();
            EXPECT_EQ(Start(), "") << "the next chart is computed";
        }
    }
}

} // namespace
} // namespace kelvaro
