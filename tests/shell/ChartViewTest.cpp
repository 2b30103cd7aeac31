#include "drawing/ChartGeometry.h"
#include "drawing/PolygonText.h"
#include "shell/charts/ChartFrame.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <algorithm>
#include <limits>

using namespace kelvaro;

namespace {

constexpr std::array<const char *, 12> bodies{"Asc", "Sun", "Moo", "Mar", "Mer", "Jup",
                                              "Ven", "Sat", "Rah", "Ket", "Gul", "Maa"};

double AreaOf(const QPolygonF &polygon) {
    double twice = 0;
    for (qsizetype index = 0; index < polygon.size(); ++index) {
        const QPointF a = polygon[index];
        const QPointF b = polygon[(index + 1) % polygon.size()];
        twice += a.x() * b.y() - a.y() * b.x();
    }
    return std::abs(twice) / 2;
}

std::vector<CellBody> BodiesOf(std::size_t count, const std::string &degrees) {
    std::vector<CellBody> cell;
    for (std::size_t index = 0; index < count; ++index) {
        cell.push_back({static_cast<Body>(index), bodies.at(index), degrees});
    }
    return cell;
}

/// The dots that a label draws, row by row, in pixels of its parent.
std::vector<QPoint> InkOf(QWidget &label) {
    QImage image(label.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    label.render(&image, {}, {}, QWidget::RenderFlags());
    std::vector<QPoint> dots;
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(row[x]) >= 16) {
                dots.push_back(label.pos() + QPoint(x, y));
            }
        }
    }
    return dots;
}

/// The least distance of dots from the borders of a cell, negative for a dot outside.
double ClearanceOf(const std::vector<QPoint> &dots, const std::vector<CellEdge> &edges) {
    double clearance = std::numeric_limits<double>::infinity();
    for (const QPoint &dot : dots) {
        for (const CellEdge &edge : edges) {
            const QPointF middle = dot + QPointF(0.5, 0.5);
            clearance = std::min(clearance, edge.offset - QPointF::dotProduct(edge.normal, middle));
        }
    }
    return clearance;
}

bool Overlap(const std::vector<QPoint> &a, const std::vector<QPoint> &b) {
    return std::ranges::any_of(a, [&b](const QPoint &dot) { return std::ranges::find(b, dot) != b.end(); });
}

} // namespace

class ChartViewTest : public QObject {
    Q_OBJECT

private slots:
    void CellsStandWhereAnAstrologerLooksForThem();
    void TextIsCentredInASquare();
    void FlowKeepsEveryWordInOrder();
    void TextKeepsInsideItsCell();
    void OnlyAFullCellShrinksAlone();
    void NamesAndFiguresStandApart();
    void BodiesThatRunOnShareALineWhileItHasRoom();
    void NoNameSpreadsOverTheCells();

private:
    static void ExpectInkInside(const ChartFrame &frame, int firstIndex);
};

void ChartViewTest::CellsStandWhereAnAstrologerLooksForThem() {
    struct Drawing {
        ChartStyle style;
        std::array<QPointF, 12> inside; ///< a point of each cell
    };
    const std::array<Drawing, 3> drawings{{
        {ChartStyle::South,
         {QPointF(.37, .12), QPointF(.62, .12), QPointF(.87, .12), QPointF(.87, .37), QPointF(.87, .62),
          QPointF(.87, .87), QPointF(.62, .87), QPointF(.37, .87), QPointF(.12, .87), QPointF(.12, .62),
          QPointF(.12, .37), QPointF(.12, .12)}},
        {ChartStyle::East,
         {QPointF(.5, .17), QPointF(.2, .1), QPointF(.1, .2), QPointF(.17, .5), QPointF(.1, .8),
          QPointF(.2, .9), QPointF(.5, .83), QPointF(.8, .9), QPointF(.9, .8), QPointF(.83, .5),
          QPointF(.9, .2), QPointF(.8, .1)}},
        {ChartStyle::North,
         {QPointF(.5, .25), QPointF(.25, .1), QPointF(.1, .25), QPointF(.25, .5), QPointF(.1, .75),
          QPointF(.25, .9), QPointF(.5, .75), QPointF(.75, .9), QPointF(.9, .75), QPointF(.75, .5),
          QPointF(.9, .25), QPointF(.75, .1)}},
    }};
    for (const auto &[style, inside] : drawings) {
        const auto outlines = CellOutlines(style);
        double area = OpenCentre(style).width() * OpenCentre(style).height();
        for (std::size_t index = 0; index < outlines.size(); ++index) {
            for (std::size_t point = 0; point < outlines.size(); ++point) {
                QCOMPARE(outlines.at(index).containsPoint(inside.at(point), Qt::OddEvenFill), index == point);
            }
            area += AreaOf(outlines.at(index));
        }
        QVERIFY2(std::abs(area - 1) < 1e-12, "the cells fill the drawing");
    }
}

void ChartViewTest::TextIsCentredInASquare() {
    const ChartFont font{QFont()};
    const CellFitter fitter({{{QStringLiteral("Sun"), {}}}},
                            EdgesOf(QPolygonF(QRectF(2, 3, 10, 10)).mid(0, 4)), font);
    const PlacedText text = fitter.Place(1, 0);
    QCOMPARE(text.runs.size(), std::size_t{1});
    const double middleX = text.runs[0].baseline.x() + font.Width(text.runs[0].text, Tone::Name) / 2;
    const double middleY = text.runs[0].baseline.y() + (font.Descent() - font.Ascent()) / 2;
    QVERIFY(std::abs(middleX - 7) < 1e-6);
    QVERIFY(std::abs(middleY - 8) < 1e-6);
}

void ChartViewTest::FlowKeepsEveryWordInOrder() {
    const ChartFont font{QFont()};
    CellText text;
    QStringList words;
    for (const char *body : bodies) {
        words << QString::fromLatin1(body);
        text.entries.push_back({words.back(), {}});
    }
    for (const QPolygonF &outline : CellOutlines(ChartStyle::North)) {
        const CellFitter fitter(text, EdgesOf(outline), font);
        QStringList placed;
        QPointF last(0, -1);
        for (const PlacedRun &run : fitter.Place(fitter.LargestSize(0), 0).runs) {
            QVERIFY(run.baseline.y() > last.y() || run.baseline.x() > last.x());
            last = run.baseline;
            placed << run.text;
        }
        QCOMPARE(placed, words);
    }
}

/// Checks what a frame draws in each cell, and its number where it has one, of the names before the
/// underscore.
void ChartViewTest::ExpectInkInside(const ChartFrame &frame, int firstIndex) {
    for (int cell = 0; cell < 12; ++cell) {
        const auto edges = EdgesOf(frame.CellOutline(static_cast<std::size_t>(cell)));
        const auto ink = InkOf(*frame.findChild<QWidget *>(QStringLiteral("Cell_%1").arg(cell + firstIndex)));
        QVERIFY(!ink.empty());
        QVERIFY(ClearanceOf(ink, edges) > 0.003 * frame.Square().width());
        if (auto *number = frame.findChild<QWidget *>(QStringLiteral("Lab_NHouseNo_%1").arg(cell + 1))) {
            const auto numberInk = InkOf(*number);
            QVERIFY(!numberInk.empty() && ClearanceOf(numberInk, edges) > 0);
            QVERIFY(!Overlap(numberInk, ink));
        }
    }
}

void ChartViewTest::TextKeepsInsideItsCell() {
    const struct {
        ChartStyle style;
        const char *figure;
        bool breaksLines;
    } rows[] = {{ChartStyle::South, "29.60", true}, {ChartStyle::South, "", true},
                {ChartStyle::East, "", false},      {ChartStyle::East, "", true},
                {ChartStyle::North, "", false},     {ChartStyle::North, "", true}};
    for (const auto &[style, figure, breaksLines] : rows) {
        const StyleOfChart &drawing = chartStyles.at(static_cast<std::size_t>(style));
        ChartForm form;
        form.VisibleFrame = style;
        form.breaksLines = breaksLines;
        form.Lab_NHouseNo.fill("12");
        for (const std::size_t count : {1U, 4U, 8U, 12U}) {
            form.bodies.fill(BodiesOf(count, figure));
            ChartFrame frame(drawing, QStringLiteral("Cell"), nullptr);
            frame.Show(form, {}, {});
            for (const QSize size : {QSize(200, 230), QSize(331, 300), QSize(1090, 740), QSize(2000, 2000)}) {
                frame.resize(size);
                frame.grab(QRect(0, 0, 1, 1)); // a hidden widget hears of its size when it is drawn
                ExpectInkInside(frame, drawing.firstIndex);
                QVERIFY2(!QTest::currentTestFailed(), qPrintable(QStringLiteral("%1, %2 bodies, width %3")
                                                                     .arg(static_cast<int>(style))
                                                                     .arg(count)
                                                                     .arg(size.width())));
            }
        }
    }
}

void ChartViewTest::OnlyAFullCellShrinksAlone() {
    const auto heightOfInk = [](std::size_t bodiesBeside) {
        ChartForm form;
        form.VisibleFrame = ChartStyle::South;
        form.breaksLines = true;
        form.bodies.at(0) = {{Body::Ketu, "Ket", "12.5"}};
        form.bodies.at(1) = BodiesOf(bodiesBeside, "29.60");
        ChartFrame frame(chartStyles.front(), QStringLiteral("Cell"), nullptr);
        frame.Show(form, {}, {});
        frame.resize(700, 700);
        frame.grab(QRect(0, 0, 1, 1));
        const auto ink = InkOf(*frame.findChild<QWidget *>(QStringLiteral("Cell_0")));
        return ink.back().y() - ink.front().y();
    };
    const int usual = heightOfInk(1);
    QVERIFY(heightOfInk(8) < usual); // text of eight bodies is a little smaller in every cell
    QCOMPARE(heightOfInk(12), usual);
}

void ChartViewTest::NamesAndFiguresStandApart() {
    const ChartFont font{QFont()};
    for (const char *figure : {"29.60", ""}) {
        CellText text;
        text.isListed = true;
        for (const char *body : bodies) {
            text.entries.push_back({QString::fromLatin1(body), QString::fromLatin1(figure)});
        }
        const CellFitter fitter(text, EdgesOf(CellOutlines(ChartStyle::South).front()), font);
        const PlacedText placed = fitter.Place(fitter.LargestSize(0), 0);
        std::vector<QRectF> boxes;
        for (const PlacedRun &run : placed.runs) {
            const double width = font.Width(run.text, run.tone) * placed.size;
            const double ascent = font.Ascent() * placed.size;
            const QRectF box(run.baseline - QPointF(0, ascent),
                             QSizeF(width, ascent + font.Descent() * placed.size));
            QVERIFY(run.text.isEmpty() || std::ranges::none_of(boxes, [&box](const QRectF &other) {
                        return other.intersects(box);
                    }));
            boxes.push_back(box);
        }
    }
}

void ChartViewTest::BodiesThatRunOnShareALineWhileItHasRoom() {
    const ChartFont font{QFont()};
    const double blank = font.Width(QStringLiteral(" "), Tone::Name);
    const auto placed = [&](std::size_t count) {
        CellText text;
        text.runsOn = true;
        for (std::size_t body = 0; body < count; ++body) {
            text.entries.push_back({QString::fromLatin1(bodies.at(body)), {}});
        }
        return CellFitter(text, EdgesOf(QPolygonF(QRectF(0, 0, 10, 10)).mid(0, 4)), font).Place(1, 0.5).runs;
    };
    const auto blanksBetween = [&](const PlacedRun &left, const PlacedRun &right) {
        return (right.baseline.x() - left.baseline.x() - font.Width(left.text, left.tone)) / blank;
    };
    const auto three = placed(3);
    QCOMPARE(three.front().baseline.y(), three.back().baseline.y());
    QVERIFY(std::abs(blanksBetween(three.at(0), three.at(1)) - 4) < 1e-6);
    QVERIFY(std::abs(blanksBetween(three.at(1), three.at(2)) - 2) < 1e-6);
    QVERIFY(placed(12).back().baseline.y() > placed(12).front().baseline.y());
}

void ChartViewTest::NoNameSpreadsOverTheCells() {
    const auto picture = [](ChartStyle style, const QString &name) {
        ChartForm form;
        form.VisibleFrame = style;
        ChartFrame frame(chartStyles.at(static_cast<std::size_t>(style)), QStringLiteral("Cell"), nullptr);
        frame.Show(form, {QStringLiteral("Rasi"), name, QStringLiteral("14/Jul/1965"), name}, {});
        frame.resize(420, 420);
        const QImage image = frame.grab().toImage();
        const QRect square = frame.Square().toAlignedRect().adjusted(2, 2, -2, -2);
        if (style == ChartStyle::North) {
            return image.copy(square); // the heading stands above it
        }
        QImage cells = image;
        const QRectF centre = OpenCentre(style);
        QPainter painter(&cells);
        painter.fillRect(QRectF(frame.Square().topLeft() + centre.topLeft() * frame.Square().width(),
                                centre.size() * frame.Square().width()),
                         Qt::black);
        return cells;
    };
    for (const ChartStyle style : {ChartStyle::South, ChartStyle::East, ChartStyle::North}) {
        for (const QString &name :
             {QString(60, u'W'), QStringLiteral("Wwwwwwwwwwwwww ").repeated(4), QString(60, u'\u0935')}) {
            QVERIFY2(picture(style, name) == picture(style, {}), qPrintable(name));
        }
    }
}

QTEST_MAIN(ChartViewTest)
#include "ChartViewTest.moc"
