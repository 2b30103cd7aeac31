#include "report/TextLayout.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

TEST(TextLayoutTest, CountsCharactersAndStrayBytes) {
    struct Case {
        std::string_view text;
        std::size_t characters;
    };
    for (const Case &entry : {
             Case{"", 0},
             Case{"राशि", 4},
             Case{"a😀b", 3},
             Case{"\xC3", 1},
             Case{"\xE0\xA4", 2},
             Case{"a\x80\xBF ", 4},
             Case{"\xC3 ", 2},
             Case{"\xFF\xC3\xAB", 2},
         }) {
        EXPECT_EQ(CharacterCount(entry.text), entry.characters) << entry.text;
    }
}

TEST(TextLayoutTest, CutsAndPadsByCharacters) {
    EXPECT_EQ(Field("Zoë", 5), "Zoë  ");
    EXPECT_EQ(Field("Zoë", 3), "Zoë");
    EXPECT_EQ(Field("Zoëlle", 3), "Zoë");
    EXPECT_EQ(Field("Zoë", 0), "");
    EXPECT_EQ(RightField("Zoë", 5), "  Zoë");
    EXPECT_EQ(RightField("Zoëlle", 3), "Zoë");
    EXPECT_EQ(Centred("Zoë", 8), "  Zoë   ");
    EXPECT_EQ(Centred("Zoëlle", 3), "Zoë");
    EXPECT_EQ(FirstCharacters("Zoë", 9), "Zoë");
    EXPECT_EQ(Field("\xE0\xA4", 3), "\xE0\xA4 ");
}

TEST(TextLayoutTest, TakesAFieldFromTheMiddle) {
    EXPECT_EQ(FieldFrom("राशिचक", 5, 2), "चक");
    EXPECT_EQ(FieldFrom("राशिचक", 6, 3), "क  ");
    EXPECT_EQ(FieldFrom("राशि", 5, 2), "  ");
    EXPECT_EQ(FieldFrom("", 9, 2), "  ");
    EXPECT_THROW(FieldFrom("abc", 0, 2), OverflowError);
}

} // namespace
} // namespace kelvaro
