#include "drawing/SvgCanvas.h"

#include "drawing/HouseFonts.h"
#include "runtime/RuntimeError.h"
#include "tests/drawing/Likeness.h"

#include <QLinearGradient>
#include <QLocale>
#include <QPainterPath>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace kelvaro;

namespace {

using Drawing = std::function<void(QPainter &)>;

constexpr QSize size(400, 300);
constexpr int unitsPerInch = 100;

QByteArray FileOf(const Drawing &drawing, const QString &title = {}) {
    SvgCanvas canvas(size, unitsPerInch);
    QPainter painter(&canvas);
    drawing(painter);
    painter.end();
    return canvas.File(title, "a drawing");
}

QImage Painted(const Drawing &drawing) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(qRound(unitsPerInch / 0.0254));
    image.setDotsPerMeterY(qRound(unitsPerInch / 0.0254));
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing(painter);
    return image;
}

/// The texts of elements and the attributes of a file, in their order; nothing where it is not well formed.
std::vector<std::pair<QString, QString>> ContentOf(const QByteArray &file) {
    std::vector<std::pair<QString, QString>> content;
    QXmlStreamReader xml(file);
    QString element;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            element = xml.name().toString();
            for (const QXmlStreamAttribute &each : xml.attributes()) {
                content.emplace_back(each.name().toString(), each.value().toString());
            }
        } else if (xml.isCharacters() && !xml.isWhitespace()) {
            content.emplace_back(element, xml.text().toString());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return content;
}

QString ValueOf(const QByteArray &file, const QString &name) {
    for (const auto &[key, value] : ContentOf(file)) {
        if (key == name) {
            return value;
        }
    }
    return {};
}

QPolygonF Star(QPointF middle, double radius) {
    QPolygonF star;
    for (const int corner : {0, 2, 4, 1, 3, 0}) {
        star << middle + QLineF::fromPolar(radius, corner * 72 + 18).p2();
    }
    return star;
}

/// A corner, an acute one, and two free ends.
QPainterPath Bent(QPointF start) {
    QPainterPath path(start);
    path.lineTo(start + QPointF(50, 0));
    path.lineTo(start + QPointF(50, 40));
    path.lineTo(start + QPointF(15, 20));
    return path;
}

void Fills(QPainter &painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(200, 30, 10));
    painter.drawPolygon(Star({80, 80}, 70), Qt::OddEvenFill);
    painter.drawPolygon(Star({230, 80}, 70), Qt::WindingFill);
    painter.fillRect(QRectF(310.25, 20.5, 60.5, 100), QColor(10, 30, 200));
    painter.setOpacity(0.5);
    painter.fillRect(QRect(20, 60, 340, 30), QColor(0, 200, 0, 120));
    painter.drawEllipse(QRectF(40, 160, 150, 90));
    painter.setOpacity(1);
    painter.drawEllipse(QPoint(300, 220), 40, 60);
}

void Strokes(QPainter &painter) {
    double y = 20;
    for (const Qt::PenCapStyle cap : {Qt::FlatCap, Qt::SquareCap, Qt::RoundCap}) {
        double x = 20;
        for (const Qt::PenJoinStyle join : {Qt::MiterJoin, Qt::BevelJoin, Qt::RoundJoin, Qt::SvgMiterJoin}) {
            QPen pen(QColor(90, 50, 30, 200), 11, Qt::SolidLine, cap, join);
            painter.setPen(pen);
            painter.drawPath(Bent({x, y}));
            x += 90;
        }
        y += 75;
    }
    painter.setBrush(QColor(240, 220, 180));
    painter.setPen(QPen(Qt::black, 5.5, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawRect(QRectF(30, 245, 60, 40)); // closed, with four corners
    painter.drawRoundedRect(QRectF(120, 245, 60, 40), 9, 9);
    painter.drawPolyline(Star({230, 265}, 30).first(5));
    painter.drawLine(QPointF(270, 250), QPointF(370, 285));
    painter.drawArc(QRectF(290, 230, 80, 60), 30 * 16, 200 * 16);
}

void Transformed(QPainter &painter) {
    painter.setPen(QPen(Qt::black, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.save();
    painter.translate(60, 30);
    painter.rotate(25);
    painter.scale(1.4, 1.4);
    painter.drawPath(Bent({}));
    painter.setBrush(Qt::red);
    painter.drawRect(QRectF(60, 20, 30, 10));
    painter.restore();
    painter.save();
    painter.translate(210, 30);
    painter.scale(3, 0.8); // lines of unlike width
    painter.drawPath(Bent({}));
    painter.shear(0.1, 0.9);
    painter.drawEllipse(QRectF(5, 50, 40, 60));
    painter.restore();
    painter.save();
    painter.scale(-2, 2); // mirrored
    painter.drawPath(Bent({-80, 90}));
    painter.restore();
    painter.setPen(QPen(Qt::blue, 4, Qt::DashDotLine));
    painter.drawRect(QRectF(30, 140, 340, 140));
    painter.save();
    painter.scale(20, 30);
    QPen cosmetic(Qt::darkGreen, 3);
    cosmetic.setCosmetic(true);
    painter.setPen(cosmetic);
    painter.drawEllipse(QPointF(15, 7), 3, 2);
    painter.setPen(QPen(Qt::red, 0));
    painter.drawLine(QPointF(2, 9), QPointF(10, 6));
    painter.restore();
}

void Texts(QPainter &painter) {
    painter.setFont(SansFont(30));
    painter.setPen(QColor(90, 50, 30));
    painter.drawText(QPointF(20, 80), "Plain text");
    painter.rotate(12);
    painter.drawText(QPointF(60, 150), "& \"turned\"");
}

} // namespace

TEST(SvgCanvas, DrawingsLookAsTheyDoOnAnImage) {
    // Engines smooth the edges of letters, and of lines that are broken, in ways of their own.
    const struct {
        const char *name;
        Drawing drawing;
        int spot;
        double likeness;
    } rows[] = {{"fills", Fills, 1, 0.03},
                {"strokes", Strokes, 1, 0.03},
                {"transformed", Transformed, 4, 0.12},
                {"texts", Texts, 4, 0.16}};
    for (const auto &[name, drawing, spot, likeness] : rows) {
        const QByteArray file = FileOf(drawing);
        EXPECT_FALSE(file.contains("<text")) << name;
        EXPECT_LT(
            Difference(InSpots(Painted(drawing), spot), InSpots(ImageOfSvg(file, size, Qt::white), spot)),
            likeness)
            << name;
    }
}

TEST(SvgCanvas, FilesHaveTheirSizeAndTheirWords) {
    const QString words = QStringLiteral("A & B <C> \"D\" ]]> \u0928 \U0001F31E") + QChar(1) + QChar(0xffff);
    const QByteArray file = FileOf(Fills, words);
    EXPECT_EQ(ValueOf(file, "width"), "101.6mm");
    EXPECT_EQ(ValueOf(file, "height"), "76.2mm");
    EXPECT_EQ(ValueOf(file, "viewBox"), "0 0 400 300");
    EXPECT_EQ(ValueOf(file, "title"), words.chopped(2));
    EXPECT_EQ(ValueOf(file, "desc"), "a drawing");
    const QByteArray odd = FileOf(Fills, QString(QChar(0xd800)) + "x");
    EXPECT_EQ(ValueOf(odd, "title"), QString(QChar(QChar::ReplacementCharacter)) + "x");
}

TEST(SvgCanvas, NumbersAreShortAndBelongToNoLanguage) {
    const QByteArray file = FileOf(Transformed);
    const QRegularExpression data(R"(^([a-z]|-?(\d+|\d*\.\d{1,2})(?![\d.])| )+$)");
    const QRegularExpression minusZero(R"(-0(?![.\d])|-\.0+(?!\d))");
    for (const auto &[name, value] : ContentOf(file)) {
        if (name == u"d") {
            EXPECT_TRUE(data.match(value).hasMatch()) << value.toStdString();
            EXPECT_FALSE(minusZero.match(value).hasMatch()) << value.toStdString();
        }
    }
    QLocale::setDefault(QLocale(QLocale::German));
    const QByteArray german = FileOf(Transformed);
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(german, file);
}

TEST(SvgCanvas, WhatAFileWouldLackIsRefused) {
    QLinearGradient gradient(0, 0, 100, 0);
    gradient.setColorAt(0, Qt::red);
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    const std::vector<Drawing> drawings{
        [&](QPainter &painter) { painter.drawImage(QPointF(10, 10), image); },
        [&](QPainter &painter) { painter.drawPixmap(10, 10, QPixmap::fromImage(image)); },
        [&](QPainter &painter) { painter.drawTiledPixmap(QRect(0, 0, 90, 90), QPixmap::fromImage(image)); },
        [&](QPainter &painter) { painter.fillRect(QRect(0, 0, 90, 90), gradient); },
        [&](QPainter &painter) { painter.fillRect(QRect(0, 0, 90, 90), Qt::DiagCrossPattern); },
        [&](QPainter &painter) { painter.fillRect(QRect(0, 0, 90, 90), QBrush(image)); },
        [&](QPainter &painter) {
            painter.setPen(QPen(gradient, 4));
            painter.drawLine(0, 0, 90, 90);
        },
        [](QPainter &painter) {
            painter.setClipRect(QRect(0, 0, 50, 50));
            Fills(painter);
        },
        [](QPainter &painter) {
            QPainterPath path;
            path.addEllipse(0, 0, 50, 50);
            painter.setClipPath(path);
            Fills(painter);
        },
        [](QPainter &painter) {
            painter.setCompositionMode(QPainter::CompositionMode_Multiply);
            Fills(painter);
        }};
    for (std::size_t index = 0; index < drawings.size(); ++index) {
        EXPECT_THROW(FileOf(drawings[index]), RuntimeError) << index;
    }
    EXPECT_NO_THROW(FileOf([](QPainter &) {}));
}
