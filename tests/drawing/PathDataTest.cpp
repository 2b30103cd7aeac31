#include "drawing/PathData.h"

#include "runtime/RuntimeError.h"
#include "tests/drawing/Likeness.h"

#include <QPainterPath>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace kelvaro;

namespace {

constexpr double halfPart = 0.00501; // of what is written, and of the doubles that it is read in

double FarthestApart(const QPainterPath &one, const QPainterPath &other) {
    if (one.elementCount() != other.elementCount()) {
        return HUGE_VAL;
    }
    double most = 0;
    for (int index = 0; index < one.elementCount(); ++index) {
        const QPointF apart = QPointF(one.elementAt(index)) - QPointF(other.elementAt(index));
        most = std::max({most, std::abs(apart.x()), std::abs(apart.y()),
                         one.elementAt(index).type == other.elementAt(index).type ? 0.0 : HUGE_VAL});
    }
    return most;
}

QImage DrawnByOthers(const QByteArray &data) {
    return ImageOfSvg(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 100 100">)"
                      R"(<path fill="none" stroke="#000" stroke-width="3" stroke-linejoin="round" d=")" +
                          data + R"("/></svg>)",
                      {200, 200}, Qt::white);
}

QImage Drawn(const QPainterPath &path) {
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(2, 2);
    painter.setPen(QPen(Qt::black, 3, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPath(path);
    return image;
}

} // namespace

TEST(PathData, GoThereAndBack) {
    QPainterPath path(QPointF(-0.004, 0.004));
    path.lineTo(10.5, 0.3);
    path.lineTo(10.5, 20.25);
    path.cubicTo(-1.236, 2, 3.3333, 4, -5, -0.07);
    path.closeSubpath();
    path.addEllipse(QPointF(100, 50), 7.7, 1234.56);
    path.moveTo(3, 3);
    path.lineTo(3, 3);
    EXPECT_LT(FarthestApart(PathOf(PathDataOf(path)), path), halfPart);
    EXPECT_EQ(PathDataOf(path).left(28).toStdString(), "m0 0l10.5 .3v19.95c-11.74-18");
}

TEST(PathData, RoundingDoesNotAddUp) {
    QPainterPath path(QPointF(1.0 / 3, 0));
    for (int step = 2; step < 5000; ++step) {
        path.lineTo(step / 3.0, step / 7.0);
    }
    EXPECT_LT(FarthestApart(PathOf(PathDataOf(path)), path), halfPart);
}

TEST(PathData, AreReadAsOthersReadThem) {
    for (const char *data :
         {"M10,10 L90 20 l-5 5 H30 v40 h-3 V50 z m5 60 20 0", "M10 90C10 10 90 10 90 90S20 70 10 90",
          "m10 50c0-40.5 20-.5.5 20s5 5 30-10s9 9 20 0", "M20 20a30 20 0 0 1 40 30",
          "M20 20a30 20 0 1 1 40 30", "M20 60a30 20 0 0 0 40-30", "M20 60a30 20 0 1040-30",
          "M10 50A1 1.5 0 0 1 90 50", "M50 20a30 30 0 1 1 0 60A30 30 0 1 1 50 20", "M30 30a5 5 0 0 1 0 0h9",
          "M5.5 6.5A8.5 8.5 0 1 1 3.5 12"}) {
        const QPainterPath path = PathOf(data);
        EXPECT_FALSE(path.isEmpty()) << data;
        EXPECT_LT(Difference(Drawn(path), DrawnByOthers(data)), 0.02) << data;
    }
}

TEST(PathData, WhatTheyDoNotKnowIsRefused) {
    for (const char *data :
         {"M", "M1", "M1 1 2", "1 1", "L1 1", "M1 1x", "M1 1 Q2 2 3 3", "M1 1 T2 2", "M1 1 z 2 2",
          "M1 1 L2,,,a", "M1 1 L1e999 1", "M1 1 Lnan 1", "M0 0A5 5 30 0 0 5 5", "M0 0A5 5 0 2 0 5 5",
          "M0 0A0 5 0 0 0 5 5", "M0 0A5 5 0 0"}) {
        EXPECT_THROW(PathOf(data), RuntimeError) << data;
    }
    EXPECT_TRUE(PathOf("").isEmpty());
}
