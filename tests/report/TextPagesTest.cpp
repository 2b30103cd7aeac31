#include "report/TextCharts.h"
#include "report/TextLayout.h"
#include "runtime/RuntimeError.h"
#include "tests/store/StoreFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

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

using Cells = std::array<std::string, 12>;

/// Texts of 36 characters, in which each place of each cell can be told: cell 2 begins with "3456".
Cells Fill() {
    Cells cells;
    std::string text("0123456789abcdefghijklmnopqrstuvwxyz");
    for (std::string &cell : cells) {
        cell = text;
        std::rotate(text.begin(), text.begin() + 3, text.end());
    }
    return cells;
}

using Lines = std::vector<std::string>;

std::string WithVisibleEnds(const Lines &lines) {
    std::string visible;
    for (const std::string &line : lines) {
        visible += line + "|\n";
    }
    return visible;
}

const Cells signNames{"Aries", "Tau", "Gem", "Can", "Leo", "Vir", "Libra", "Sco", "Sag", "Cap", "Aqu", "Pis"};

class TextChartsTest : public store::StoreTest {
protected:
    void Open(const Cells &cells, std::string_view rest = "") {
        std::string statement("select ");
        for (const std::string &cell : cells) {
            statement += "'" + cell + "',";
        }
        statement.back() = ' ';
        row_.Close();
        row_.Open(statement.append(rest), connection_);
    }

    Lines South(std::string_view title) const { return SouthTextChart(row_, title, signNames); }
    Lines North(std::string_view title, int firstSign) const {
        return NorthTextChart(row_, title, firstSign);
    }
    Lines East(std::string_view title) const { return EastTextChart(row_, title, signNames); }

    store::Recordset row_;
};

// In the references "|" shows where a line ends.
TEST_F(TextChartsTest, DrawsEveryCellInItsPlace) {
    Open(Fill());
    EXPECT_EQ(WithVisibleEnds(South("Rasi")), store::BytesOf(REPORT_REFERENCES "/FullCellsSouth.txt"));
    EXPECT_EQ(WithVisibleEnds(North("Navamsa", 11)), store::BytesOf(REPORT_REFERENCES "/FullCellsNorth.txt"));
    EXPECT_EQ(WithVisibleEnds(East("Bhava")), store::BytesOf(REPORT_REFERENCES "/FullCellsEast.txt"));
}

TEST_F(TextChartsTest, TightensCellsAndCutsThemByCharacters) {
    Cells cells;
    cells[2] = "Sun   Moo Mar    Ven";
    cells[5] = "राशिचक";
    Open(cells);
    const Lines lines = South("राशि");
    EXPECT_EQ(lines[1].substr(15), "*           *           *Sun Moo Mar*           *");
    EXPECT_EQ(lines[2].substr(15), "*           *           * Ven       *           *");
    EXPECT_EQ(lines[6].substr(15), "*           *                       *राशिचक     *");
    EXPECT_EQ(lines[10].substr(15), "*************          राशि         *************");
}

TEST_F(TextChartsTest, PutsTheSouthTitleIntoTheCentre) {
    Open({});
    const auto centre = [this](const char *title) { return South(title)[10].substr(28, 23); };
    EXPECT_EQ(centre("Bhava"), "          Bhava        ");
    EXPECT_EQ(centre("abcdefghijklmnopqrstuv"), " abcdefghijklmnopqrstuv");
    EXPECT_EQ(centre("abcdefghijklmnopqrstuvwxyz"), "abcdefghijklmnopqrstuvw");
    EXPECT_EQ(North(std::string(50, 'x'), 1)[0], std::string(19, ' ') + std::string(41, 'x'));
}

TEST_F(TextChartsTest, DrawsEmptyCellsWithoutARow) {
    Open({});
    const Lines south = South("Rasi");
    const Lines north = North("Rasi", 12);
    Open(Fill(), "where 1 = 0");
    ASSERT_TRUE(row_.IsEndOfFile());
    EXPECT_EQ(South("Rasi"), south);
    EXPECT_EQ(North("Rasi", 12), north);
    EXPECT_EQ(north[5], std::string(19, ' ') + "*       *   1 *           *   3 *       *");
}

TEST_F(TextChartsTest, RefusesWhatIsNoChart) {
    Open({});
    EXPECT_THROW(North("Rasi", 0), OverflowError);
    EXPECT_THROW(North("Rasi", 13), OverflowError);
    row_.Close();
    row_.Open("select 'a','b'", connection_);
    EXPECT_THROW(East("Rasi"), store::StoreError);
}

TEST(CellReducerTest, KeepsThreeCharactersOfEachBody) {
    struct Case {
        std::string (*reduce)(std::string_view);
        const char *label;
        const char *reduced;
    };
    for (const Case &entry : {
             Case{ReduceCellLines, "", ""},
             Case{ReduceCellLines, "Sun  12.5", "Sun"},
             Case{ReduceCellLines, "Sun  12.5\r\nMoo  3.40\r\n", "Sun Moo"},
             Case{ReduceCellLines, "Sun      Moo  ", "Sun"},
             Case{ReduceCellLines, "\r\n राशि\r\n\r\nMa", "राश  Ma"},
             Case{ReduceCellPairs, "Lagna  Sun  Gul  ", "Lag Sun Gul"},
             Case{ReduceCellPairs, "Sun     Moo", "Sun  Moo"},
             Case{ReduceCellBlanks, "Asc Sun Moo ", "Asc Sun Moo"},
             Case{ReduceCellBlanks, "Lagna  Sun", "Lag  Sun"},
         }) {
        EXPECT_EQ(entry.reduce(entry.label), entry.reduced) << entry.label;
    }
    EXPECT_EQ(TightenBlanks("a  b   c    d      e       "), "a  b c  d  e   ");
}

} // namespace
} // namespace kelvaro
