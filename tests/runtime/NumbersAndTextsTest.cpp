#include "runtime/CaseFolding.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "runtime/Texts.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>

namespace kelvaro {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Numbers, RoundHalvesToTheEvenNeighbour) {
    const struct {
        double value, rounded;
    } cases[] = {
        {0.5, 0},       {1.5, 2},           {2.5, 2},
        {3.5, 4},       {-0.5, 0},          {-1.5, -2},
        {-2.5, -2},     {2.4, 2},           {2.6, 3},
        {-2.6, -3},     {2.5000000001, 3},  {0.49999999999999994, 0},
        {-1e-20, 0},    {1e15 + 0.5, 1e15}, {4503599627370495.5, 4503599627370496},
        {1e300, 1e300},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(RoundHalfToEven(c.value), c.rounded) << c.value;
    }
}

TEST(Numbers, KeepToTheEdgesOfIntegers) {
    EXPECT_EQ(ToInt16(32767.4999), 32767);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt32(2147483647.25), 2147483647);
    EXPECT_EQ(ToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ToInt32(1999999999.5), 2000000000);
    for (const double value : {32767.5, -32768.51, 1e300, -infinity, infinity, notANumber}) {
        EXPECT_THROW(ToInt16(value), OverflowError) << value;
    }
    for (const double value : {2147483647.5, -2147483648.75, 1e300, -infinity, infinity, notANumber}) {
        EXPECT_THROW(ToInt32(value), OverflowError) << value;
    }
}

TEST(Numbers, AreReadFromText) {
    const struct {
        const char *text;
        double value;
    } cases[] = {{"78", 78},  {" 5.5\t", 5.5}, {"+5", 5},       {"-0.25", -0.25},
                 {".5", 0.5}, {"5.", 5},       {"1.5e3", 1500}, {"007", 7}};
    for (const auto &c : cases) {
        EXPECT_EQ(NumberFromText(c.text), c.value) << c.text;
    }
    for (const char *text :
         {"", " ", "+", "-", "+-5", "--5", "5 5", "5,5", "1e400", "inf", "nan", "0x10", "five", "5E"}) {
        EXPECT_THROW(NumberFromText(text), ConversionError) << text;
    }
}

TEST(Numbers, AreWritten) {
    EXPECT_EQ(NumberText(78), "78");
    EXPECT_EQ(NumberText(5.5), "5.5");
    EXPECT_EQ(NumberText(-0.25), "-0.25");
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(23937.59375), "23937.59375");
    EXPECT_EQ(TwoDigitText(7), "07");
    EXPECT_EQ(TwoDigitText(0.5), "01");
    EXPECT_EQ(TwoDigitText(59.5), "60");
    EXPECT_EQ(TwoDigitText(360), "360");
}

TEST(Texts, TrimsBlanksAndTabsOnly) {
    EXPECT_EQ(Trimmed(" \t a\tb \t"), "a\tb");
    EXPECT_EQ(Trimmed(" \t "), "");
    EXPECT_TRUE(IsBlank("\t ") && IsBlank(""));
    EXPECT_FALSE(IsBlank("\n"));
}

TEST(Texts, KnowsTheCaseOfAToZOnly) {
    EXPECT_TRUE(SameIgnoringCase("PM", "pM"));
    EXPECT_FALSE(SameIgnoringCase("PM", "PM "));
    EXPECT_FALSE(SameIgnoringCase("@[", "`{"));
    EXPECT_FALSE(SameIgnoringCase("\xC3\x84", "\xC3\xA4"));
}

TEST(Texts, NamesHaveNoCaseInAnyScript) {
    const struct {
        const char *left, *right;
        int order; ///< by the folded letters
    } cases[] = {
        {"PM", "pM", 0},          {"Österreich", "öSTERREICH", 0},
        {"Straße", "STRASSE", 0}, {"Москва", "МОСКВА", 0},
        {"ΟΔΟΣ", "οδος", 0},      {"\u212Aelvin", "kelvin", 0},
        {"Hyd", "Hyde", -1},      {"Oz", "öa", -1},
        {"ÖA", "öb", -1},         {"ö", "O", 1},
        {"@[", "`{", -1},         {"a\xFF", "A\xFF", 0},
        {"\xC3", "\xC3\x84", -1}, {"हैदराबाद", "हैदराबाद", 0},
        {"öÄ", "öã", 1},          {"Öde", "Öd", 1},
    };
    const auto sign = [](int order) { return (order > 0) - (order < 0); };
    for (const auto &[left, right, order] : cases) {
        EXPECT_EQ(sign(CompareInAnyCase(left, right)), order) << left << right;
        EXPECT_EQ(sign(CompareInAnyCase(right, left)), -order) << left << right;
        EXPECT_EQ(sign(CaseFolded(left).compare(CaseFolded(right))), order) << left << right;
    }
    EXPECT_TRUE(BeginsInAnyCase("Hyderabad", "hYD") && BeginsInAnyCase("Örebro", "öR") &&
                BeginsInAnyCase("Hyd", ""));
    EXPECT_FALSE(BeginsInAnyCase("Hyd", "Hyde") || BeginsInAnyCase("A Hyd", "hyd"));
}

TEST(Texts, ALongNameIsComparedUpToTheFirstDifference) {
    std::string name = "ö";
    for (int mark = 0; mark < 500000; ++mark) {
        name += "\u0301";
    }
    const auto start = std::chrono::steady_clock::now();
    for (int row = 0; row < 1000; ++row) {
        ASSERT_GT(CompareInAnyCase(name, "Öland"), 0);
    }
    EXPECT_EQ(CompareInAnyCase(name, name), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST(Texts, ALineIsNoLongerThanAName) {
    std::string name;
    for (std::size_t i = 0; i < longestName; ++i) {
        name += "ö";
    }
    EXPECT_EQ(CharactersIn(name), longestName);
    EXPECT_EQ(OneLine(name), name);
    EXPECT_EQ(OneLine(name + "x"), name.substr(0, name.size() - 2) + "…");
    EXPECT_EQ(OneLine("a\nb\tc\x7F"), "a b c ");
}

} // namespace
} // namespace kelvaro
