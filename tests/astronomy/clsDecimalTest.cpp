#include "astronomy/clsDecimal.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

TEST(clsDecimal, ReadsDegreesMinutesAndSeconds) {
    const clsDecimal decimal;
    EXPECT_DOUBLE_EQ(decimal.FnFindDecimal("011.06.40"), 11.111111111111111);
    EXPECT_DOUBLE_EQ(decimal.FnFindDecimal("360.00.00"), 360);
    EXPECT_DOUBLE_EQ(decimal.FnFindDecimal("000:30'18"), 0.505) << "the separators are not looked at";
    for (const char *text : {"", "1", "011", "01x.06.40", "011.x6.40", "011.06.4x", "abc.de.fg"}) {
        EXPECT_THROW(decimal.FnFindDecimal(text), ConversionError) << text;
    }
}

} // namespace
} // namespace kelvaro
