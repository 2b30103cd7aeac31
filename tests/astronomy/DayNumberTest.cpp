#include "astronomy/theory/DayNumber.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

TEST(DayNumber, AgreesWithTheJulianDay) {
    const struct {
        double year, month, day;
        double julianDay; ///< at 0 hours, by the Swiss Ephemeris
    } cases[] = {
        {1900, 1, 1, 2415020.5},
        {1899, 12, 31, 2415019.5},
        {1800, 1, 1, 2378496.5},
        {1800, 3, 1, 2378555.5},
        {2000, 2, 29, 2451603.5},
        {3000, 12, 31, 2817151.5},
        {1000, 2, 29, 2086366.5},
        {1, 1, 1, 1721423.5},
        {1582, 10, 4, 2299159.5},
        {1582, 10, 15, 2299160.5},
        {1582, 12, 31, 2299237.5},
        {1583, 3, 1, 2299297.5},
        // The ten dates that the reform left out are Gregorian ones.
        {1582, 10, 5, 2299150.5},
        {1582, 10, 10, 2299155.5},
        // The first two months of 1583 belong to the year of the reform and are still Julian.
        {1583, 1, 31, 2299278.5},
        {1583, 2, 1, 2299279.5},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(DayNumberOf(c.year, c.month, c.day), c.julianDay - 2415020)
            << c.year << '-' << c.month << '-' << c.day;
    }
}

TEST(DayNumber, KnowsNoYearZeroAndNoYearBeyond16Bits) {
    EXPECT_FALSE(DayNumberOf(0, 1, 1).has_value());
    EXPECT_THROW(DayNumberOf(32768, 1, 1), OverflowError);
}

} // namespace
} // namespace kelvaro
