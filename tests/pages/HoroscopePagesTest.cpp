#include "pages/HoroscopePages.h"

#include "horoscope/CalculateHoroscope.h"
#include "pages/PageType.h"
#include "pages/PdfFile.h"
#include "tests/horoscope/HoroscopeFixture.h"
#include "tests/pages/PaintedText.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace kelvaro {
namespace {

/// What was painted of a page, and on which.
using Texts = std::vector<PaintedText>;

std::vector<Texts> PaintedPages(const HoroscopePages &pages) {
    std::vector<Texts> painted;
    for (int page = 0; page < pages.Count(); ++page) {
        TextRecorder recorder;
        QPainter painter(&recorder);
        pages.Paint(page, painter);
        painter.end();
        painted.push_back(recorder.texts);
    }
    return painted;
}

QString AllOf(const Texts &texts) {
    QStringList words;
    for (const PaintedText &each : texts) {
        words << each.text;
    }
    return words.join(u' ').simplified();
}

/// The part of a page that has ink, in points; with its margins it is the whole of a page.
QRectF InkOf(const HoroscopePages &pages, int page) {
    constexpr int dotsPerPoint = 2;
    QImage image((pages.Paper() * dotsPerPoint).toSize(), QImage::Format_Grayscale8);
    image.setDotsPerMeterX(qRound(72 * dotsPerPoint / 0.0254));
    image.setDotsPerMeterY(qRound(72 * dotsPerPoint / 0.0254));
    image.fill(Qt::white);
    QPainter painter(&image);
    pages.Paint(page, painter);
    painter.end();
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        const uchar *line = image.constScanLine(y);
        const auto *first = std::find_if(line, line + image.width(), [](uchar grey) { return grey < 250; });
        if (first == line + image.width()) {
            continue;
        }
        int last = image.width() - 1;
        while (line[last] >= 250) {
            --last;
        }
        ink |= QRect(QPoint(static_cast<int>(first - line), y), QPoint(last, y));
    }
    return {QPointF(ink.topLeft()) / dotsPerPoint, QSizeF(ink.size()) / dotsPerPoint};
}

class HoroscopePagesTest : public HoroscopeTest {
protected:
    void Calculate(const char *style = "South", const char *language = "English") {
        horoscope.state.preferences.ChartStyle = style;
        horoscope.state.preferences.Language = language;
        CalculateHoroscope(horoscope);
        ASSERT_EQ(display.failure, "");
    }

    HoroscopePages Composed(const PageOptions &options = {}) {
        return ComposePages(horoscope.state, horoscope.forms, connection, options);
    }

    void SetLetterhead(const std::string &text) {
        connection.Execute("delete from personalDetails");
        connection.Execute("insert into personalDetails (Name, Address, Address2, City, Zipcode, Country, "
                           "Phone, EMail) values ('" +
                           text + "', '" + text + "', '" + text + "', '" + text + "', '" + text + "', '" +
                           text + "', '" + text + "', '" + text + "')");
    }

    static constexpr PageOptions everything{AntraSection::With, true, QPageSize::A4};
};

TEST_F(HoroscopePagesTest, HaveTheOrderOfTheReport) {
    Calculate();
    const HoroscopePages pages = Composed(everything);
    const std::vector<Texts> painted = PaintedPages(pages);
    const std::vector<const char *> starts{
        "AUM GANESHAYA NAMAH",  "Rasi", "Bhava",        "Planet Positions",
        "Vargas Chart",         "Rasi", "Shodashamsha", "Bhukti Bukti Start End",
        "Antra Antra Start End"};
    ASSERT_EQ(pages.Count(), 15);
    for (std::size_t page = 0; page < starts.size(); ++page) {
        EXPECT_EQ(AllOf(painted[page]).left(QString(starts[page]).size()).toStdString(), starts[page]);
    }
    EXPECT_EQ(painted[2].back().text.toStdString(), "Velnesh \u00b7 page 3 of 15");
    EXPECT_EQ(Composed().Count(), 6);
    EXPECT_EQ(pages.Title().toStdString(), "Horoscope of Velnesh");
    EXPECT_EQ(pages.Author().toStdString(), "Kelvaro Basic");
    SetLetterhead("Raghunatha Sharma");
    EXPECT_EQ(Composed().Author().toStdString(), "Raghunatha Sharma");
    horoscope.state.birth.ChartName = " ";
    EXPECT_EQ(Composed().Title().toStdString(), "Horoscope");
    EXPECT_EQ(PaintedPages(Composed()).front().back().text.toStdString(), "page 1 of 6");
}

TEST_F(HoroscopePagesTest, StayInsideTheMarginsAndAreLegible) {
    std::string marks = "a";
    for (int i = 0; i < 500; ++i) {
        marks += "\u0301";
    }
    const std::string wide(255, 'W');
    const std::vector<std::string> names{wide, marks, "\u05d0\u05d1\u05d2 \u202e\u0645\u062d\u0645\u062f",
                                         "a\tb\nc\x01"
                                         "d\r\n",
                                         ""};
    const std::vector<const char *> styles{"South", "North", "East", "South", "North"};
    SetBirth(MomentOf({1962, 2, 5}, {5, 30, 0}));
    for (std::size_t i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(names[i]);
        horoscope.state.birth.ChartName = names[i];
        horoscope.state.birth.BirthCity = names[i];
        SetLetterhead(names[i]);
        Calculate(styles[i], i % 2 == 0 ? "English" : "Sanskrit");
        const HoroscopePages pages =
            Composed({AntraSection::Without, true, i % 2 == 0 ? QPageSize::Letter : QPageSize::A4});
        EXPECT_EQ(pages.Count(), 8);
        const QRectF room(
            QPointF(sideMargin, topMargin),
            QPointF(pages.Paper().width() - sideMargin, pages.Paper().height() - footerBaseline + 4));
        for (int page = 0; page < pages.Count(); ++page) {
            const QRectF ink = InkOf(pages, page);
            EXPECT_TRUE(room.adjusted(-1, -1, 1, 1).contains(ink))
                << "page " << page << ": " << ink.left() << " " << ink.top() << " " << ink.right() << " "
                << ink.bottom();
        }
        for (const Texts &texts : PaintedPages(pages)) {
            for (const PaintedText &each : texts) {
                EXPECT_GE(each.fontSize, leastType - 0.001) << each.text.toStdString();
            }
        }
    }
}

TEST_F(HoroscopePagesTest, LongTextsOfThePersonGiveWayToTheOwners) {
    const std::string address =
        "12 Tank Bund Road, behind the Old Observatory, third house on the left with a blue gate";
    SetLetterhead(address);
    std::string name;
    while (name.size() < 250) {
        name += "Venkata ";
    }
    horoscope.state.birth.ChartName = name;
    horoscope.state.birth.BirthCity = name;
    Calculate();
    const QString title = AllOf(PaintedPages(Composed()).front());
    EXPECT_GE(title.count(QString::fromStdString(address)), 3);
    EXPECT_TRUE(title.contains(QStringLiteral("Venkata Venkata")));
    EXPECT_TRUE(title.contains(u'\u2026'));
}

TEST_F(HoroscopePagesTest, ACrowdedSignShowsAllItsBodies) {
    SetBirth(MomentOf({1962, 2, 4}, {17, 30, 0}));
    for (const char *style : {"South", "North", "East"}) {
        for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
            Calculate(style);
            const std::vector<Texts> painted = PaintedPages(Composed({AntraSection::Without, true, paper}));
            const Texts &charts = painted.at(1);
            for (const char *name :
                 {"Sun", "Moo", "Mar", "Mer", "Jup", "Ven", "Sat", "Rah", "Ket", "Gul", "Maa"}) {
                EXPECT_EQ(std::ranges::count(charts, QString::fromLatin1(name), &PaintedText::text), 2)
                    << style << " " << name;
            }
            // Each body of the twenty-one vargas is in its chart or in a note below it.
            for (const std::size_t page : {5U, 6U}) {
                const QString all = AllOf(painted.at(page));
                EXPECT_EQ(all.count(QStringLiteral("Jup")), page == 5 ? 12 : 9) << style;
                EXPECT_EQ(all.count(QStringLiteral("Asc")), page == 5 ? 12 : 9) << style;
            }
        }
    }
}

/// The Lagna's house is the first, which stands in the middle below the title of each chart.
TEST_F(HoroscopePagesTest, NorthChartsOfVargasBeginAtTheLagna) {
    Calculate("North");
    const std::vector<Texts> painted = PaintedPages(Composed(everything));
    const auto middle = [](const PaintedText &text) { return text.baseline.x() + text.width / 2; };
    for (const std::size_t page : {5U, 6U}) {
        const Texts &texts = painted.at(page);
        for (std::size_t chart = 0; chart < (page == 5 ? 12U : 9U); ++chart) {
            const std::string varga =
                horoscope.forms.Frm_Vargas.mshVargas.rows.at(chart + (page == 5 ? 0 : 12)).front();
            const auto title = std::ranges::find(texts, QString::fromStdString(varga), &PaintedText::text);
            ASSERT_NE(title, texts.end()) << varga;
            EXPECT_TRUE(std::ranges::any_of(texts, [&](const PaintedText &text) {
                const double below = text.baseline.y() - title->baseline.y();
                return text.text == "Asc" && std::abs(middle(text) - middle(*title)) < 1 && below > 0 &&
                       below < 70;
            })) << varga;
        }
    }
}

/// Blocks and rows stay whole: what starts on a page ends there, in the same column.
TEST_F(HoroscopePagesTest, NoRowAndNoBlockIsTorn) {
    Calculate();
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
        const std::vector<Texts> painted = PaintedPages(Composed({AntraSection::With, false, paper}));
        std::size_t rows = 0;
        for (std::size_t page = 6; page < painted.size(); ++page) {
            std::map<int, std::vector<double>> columns;
            std::size_t inBlock = 9;
            for (const PaintedText &each : painted[page]) {
                if (each.text.contains(QStringLiteral(" Bhukthi"))) {
                    EXPECT_EQ(inBlock, 9U);
                    inBlock = 0;
                } else if (each.text.count(u'/') == 2) {
                    columns[qRound(each.baseline.y())].push_back(each.baseline.x());
                    inBlock += columns[qRound(each.baseline.y())].size() % 2 == 0 ? 1U : 0U;
                    ++rows;
                }
            }
            EXPECT_EQ(inBlock, 9U) << page;
            for (const auto &[y, dates] : columns) {
                EXPECT_EQ(dates.size() % 2, 0U) << page << ", " << y;
            }
        }
        EXPECT_EQ(rows, 2 * horoscope.forms.Frm_Dasa.antras.size());
    }
}

TEST_F(HoroscopePagesTest, ViewsThatWereNeverFilledAreLeftOut) {
    const HoroscopePages pages = ComposePages({}, {}, connection, everything);
    ASSERT_GE(pages.Count(), 5);
    for (const Texts &texts : PaintedPages(pages)) {
        EXPECT_FALSE(texts.empty());
    }
    Calculate();
    horoscope.state.preferences.ChartStyle = "West";
    EXPECT_EQ(Composed(everything).Count(), 13);
}

TEST_F(HoroscopePagesTest, APdfHasItsPropertiesAndIsSmall) {
    SetLetterhead("R\u0101ghava");
    Calculate();
    std::vector<int> heard;
    const auto pdf = PdfOf(Composed({AntraSection::Without, true, QPageSize::A4}), [&](int done, int count) {
        EXPECT_EQ(count, 8);
        heard.push_back(done);
        return true;
    });
    ASSERT_TRUE(pdf);
    EXPECT_EQ(heard, (std::vector{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_LT(pdf->size(), 300 * 1024);
    EXPECT_TRUE(pdf->startsWith("%PDF-"));
    EXPECT_TRUE(pdf->endsWith("%%EOF\n"));
    EXPECT_TRUE(pdf->contains("/Author <FEFF0052010100670068006100760061>"));
    // The later version of the properties has all of the earlier one, a title of any letters too.
    horoscope.state.birth.ChartName = "\u3e3e\u3e3e";
    const auto other = PdfOf(Composed(), [](int, int) { return true; });
    ASSERT_TRUE(other);
    EXPECT_EQ(other->count("/CreationDate"), 2);
    EXPECT_TRUE(other->contains("startxref\n" + QByteArray::number(other->lastIndexOf("xref\n1 1")) + "\n"));
    EXPECT_FALSE(PdfOf(Composed(), [](int done, int) { return done < 3; }));
}

} // namespace
} // namespace kelvaro
