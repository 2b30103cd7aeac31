#include "runtime/Texts.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

TEST(Texts, TrimsBlanksAndTabsOnly) {
    EXPECT_EQ(Trimmed(" \t a\tb \t"), "a\tb");
    EXPECT_EQ(Trimmed(" \t "), "");
    EXPECT_TRUE(IsBlank("\t ") && IsBlank(""));
    EXPECT_FALSE(IsBlank("\n"));
}

TEST(Texts, KnowsTheCaseOfAToZOnly) {
    EXPECT_EQ(LowerCase("AZaz@[`{0 \xC3\x84"), "azaz@[`{0 \xC3\x84");
    EXPECT_TRUE(SameIgnoringCase("PM", "pM"));
    EXPECT_FALSE(SameIgnoringCase("PM", "PM "));
    EXPECT_FALSE(SameIgnoringCase("@[", "`{"));
    EXPECT_FALSE(SameIgnoringCase("\xC3\x84", "\xC3\xA4"));
    EXPECT_TRUE(BeginsWith("Hyderabad", "hYD") && BeginsWith("Hyd", "") && BeginsWith("hyd", "Hyd"));
    EXPECT_FALSE(BeginsWith("Hyd", "Hyde") || BeginsWith("A Hyd", "hyd"));
}

} // namespace
} // namespace kelvaro
