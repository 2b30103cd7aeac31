#include "drawing/TableDrawing.h"

#include "drawing/ChartColours.h"
#include "drawing/HouseFonts.h"
#include "drawing/PointRuler.h"
#include "tests/pages/PaintedText.h"

#include <QFontInfo>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace kelvaro;

namespace {

/// Of its natural width.
TableDrawing DrawingOfGrid(const TextGrid &grid, const QString &alignments) {
    return TableDrawing(ContentOf(grid, alignments));
}

TextGrid Periods() {
    TextGrid grid;
    grid.header = "Lord   |  From  | Sub  Lord  |Age ";
    grid.rows = {{"Sun", "14/Jul/1965", "Moon", "0 - 2"},
                 {"A lord of a long name", "1", "of many more words than others have", "12"},
                 {"Mars", "31/Jul/1977", "Ketu"}};
    grid.boldCells = {{1, 3}, {2, 0}};
    grid.sections = {{"First", 0}, {"Second", 2}};
    return grid;
}

std::vector<PaintedText> PaintedRows(const TableDrawing &table, std::size_t first, std::size_t last) {
    TextRecorder recorder;
    QPainter painter(&recorder);
    table.PaintRows(painter, {}, first, last);
    painter.end();
    return recorder.texts;
}

std::vector<PaintedText> Painted(const TableDrawing &table) {
    return PaintedRows(table, 0, table.RowCount());
}

/// All letters in the order of painting; blanks at the ends of lines are not painted.
QString LettersOf(const std::vector<PaintedText> &texts) {
    QString letters;
    for (const PaintedText &each : texts) {
        letters += each.text;
    }
    return letters.remove(u' ');
}

void ExpectInside(const std::vector<PaintedText> &texts, QSizeF size) {
    for (const PaintedText &each : texts) {
        EXPECT_GE(each.baseline.x(), -0.05) << each.text.toStdString();
        EXPECT_LE(each.baseline.x() + each.width, size.width() + 0.2) << each.text.toStdString();
        EXPECT_GE(each.baseline.y() - each.fontSize * 0.65, 0) << each.text.toStdString();
        EXPECT_LE(each.baseline.y() + each.fontSize * 0.25, size.height()) << each.text.toStdString();
    }
}

} // namespace

TEST(HouseFonts, ComeWithTheProgram) {
    EXPECT_EQ(QFontInfo(SerifFont(10)).family().toStdString(), "Linux Libertine O");
    EXPECT_EQ(QFontInfo(SansFont(10)).family().toStdString(), "Linux Biolinum O");
}

TEST(HouseFonts, HaveFiguresOfEqualWidthAndNoLigatures) {
    for (const QFont &font : {SerifFont(10), SerifFont(10, Weight::Bold), SansFont(10)}) {
        const double nought = WidthOf(QStringLiteral("0000"), font);
        for (char digit = '1'; digit <= '9'; ++digit) {
            EXPECT_NEAR(WidthOf(QString(4, QLatin1Char(digit)), font), nought, 0.02) << digit;
        }
        const double apart = WidthOf(QStringLiteral("f"), font) + WidthOf(QStringLiteral("i"), font);
        EXPECT_NEAR(WidthOf(QStringLiteral("fi"), font), apart, 0.02);
    }
}

TEST(TableDrawing, PaintsTheCellsInReadingOrder) {
    const TableDrawing table = DrawingOfGrid(Periods(), QStringLiteral("lr"));
    const auto texts = Painted(table);
    QStringList painted;
    for (const PaintedText &each : texts) {
        painted << each.text;
    }
    EXPECT_EQ(painted.join(u'|').toStdString(),
              "Lord|From|Sub Lord|Age|First|Sun|14/Jul/1965|Moon|0 - 2|"
              "A lord of a long name|1|of many more words than others have|12|Second|Mars|31/Jul/1977|Ketu");
    ExpectInside(texts, table.Size());
    const auto find = [&texts](const char *text) {
        return *std::ranges::find(texts, QString::fromLatin1(text), &PaintedText::text);
    };
    EXPECT_TRUE(find("Mars").isBold);
    EXPECT_FALSE(find("Sun").isBold);
    // "lr": the second column and those behind it end at the right.
    EXPECT_NEAR(find("From").baseline.x() + find("From").width, find("1").baseline.x() + find("1").width,
                0.1);
}

TEST(TableDrawing, ANarrowRoomTakesMoreLinesAndLosesNothing) {
    TableDrawing table = DrawingOfGrid(Periods(), QStringLiteral("lrlr"));
    const QString letters = LettersOf(Painted(table));
    const double natural = table.Width();
    double heightBefore = 0;
    for (const double share : {1.0, 0.8, 0.6, 0.4}) {
        const double room = natural * share;
        table.FitTo(room);
        EXPECT_LE(table.Width(), room + 0.01);
        const auto texts = Painted(table);
        EXPECT_EQ(LettersOf(texts).toStdString(), letters.toStdString()) << share;
        ExpectInside(texts, table.Size());
        EXPECT_GE(std::ranges::min(texts, {}, &PaintedText::fontSize).fontSize, 8);
        EXPECT_GE(table.Size().height(), heightBefore);
        heightBefore = table.Size().height();
    }
}

TEST(TableDrawing, FillsAWideRoomWithWiderGapsUpToABound) {
    TableDrawing table = DrawingOfGrid(Periods(), QStringLiteral("l"));
    const double natural = table.Width();
    table.FitTo(natural + 20);
    EXPECT_NEAR(table.Width(), natural + 20, 0.01);
    table.FitTo(10 * natural);
    EXPECT_LT(table.Width(), 2 * natural);
}

TEST(TableDrawing, PartsRepeatTheTitles) {
    const TableDrawing table = DrawingOfGrid(Periods(), QStringLiteral("l"));
    const auto texts = PaintedRows(table, 4, 5);
    EXPECT_EQ(LettersOf(texts).toStdString(), "LordFromSubLordAgeMars31/Jul/1977Ketu");
    ExpectInside(texts, {table.Width(), table.HeightOf(4, 5)});
    EXPECT_LT(table.HeightOf(0, 2) + table.HeightOf(2, 5), table.Size().height() + table.HeightOf(0, 0));
}

TEST(TableDrawing, NoRuleIsLostBetweenTheDotsOfAScreen) {
    const TableDrawing table = DrawingOfGrid(Periods(), QStringLiteral("lrlr"));
    for (int step = 0; step < 60; ++step) {
        const double zoom = 0.25 + step * 0.0131;
        QImage image(600, 200, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(zoom, zoom);
        table.PaintRows(painter, {4, 4}, 0, table.RowCount());
        painter.end();
        const int left = static_cast<int>(std::ceil(4 * zoom));
        const auto isRule = [&](int y) {
            int x = left;
            while (x < image.width() && image.pixelColor(x, y) == lineColour) {
                ++x;
            }
            return x > left + table.Width() * zoom / 2; // no letter is so wide
        };
        int rules = 0;
        for (int y = 1; y < image.height(); ++y) {
            rules += isRule(y) && !isRule(y - 1) ? 1 : 0;
        }
        EXPECT_EQ(rules, 3) << zoom;
    }
}

TEST(TableDrawing, ATableWithoutRowsIsItsTitles) {
    TableDrawing table = DrawingOfGrid({"Lord|From", {}, {}, {}}, QStringLiteral("l"));
    table.FitTo(200);
    EXPECT_EQ(LettersOf(Painted(table)).toStdString(), "LordFrom");
    EXPECT_EQ(LettersOf(Painted(DrawingOfGrid({}, QStringLiteral("l")))).toStdString(), "");
}
