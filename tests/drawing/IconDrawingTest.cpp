#include "drawing/IconDrawing.h"

#include "runtime/RuntimeError.h"
#include "tests/drawing/Likeness.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

using namespace kelvaro;

namespace {

QStringList AllIcons() {
    QStringList files;
    for (const char *name : {HOUSE_ICONS, PROGRAM_ICONS}) {
        const QDir folder(name);
        for (const QString &file : folder.entryList({"*.svg"})) {
            files << folder.filePath(file);
        }
    }
    return files;
}

QByteArray ContentOf(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A file of this content that lives for a test.
class DrawingFile {
public:
    explicit DrawingFile(const QByteArray &content) {
        QFile file(Name());
        isWritten_ = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }

    bool IsWritten() const { return isWritten_; }
    QString Name() const { return folder_.filePath("drawing.svg"); }

private:
    QTemporaryDir folder_;
    bool isWritten_ = false;
};

QByteArray Svg(const QByteArray &shapes) {
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">)" + shapes + "</svg>";
}

QImage ImageOf(const IconDrawing &drawing, int side) {
    return drawing.At({side, side}).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

TEST(IconDrawing, IconsLookAsOtherReadersDrawThem) {
    const QStringList icons = AllIcons();
    ASSERT_GT(icons.size(), 10);
    for (const QString &name : icons) {
        const IconDrawing drawing(name);
        for (const int side : {16, 20, 22, 24, 33, 48, 64, 128, 256}) {
            // The other one rounds the corners of rectangles by whole hundredths.
            const int spot = name.contains("kelvaro") ? std::max(side / 16, 1) : 1;
            EXPECT_LT(Difference(InSpots(ImageOf(drawing, side), spot),
                                 InSpots(ImageOfSvg(ContentOf(name), {side, side}, Qt::transparent), spot)),
                      0.045)
                << name.toStdString() << " " << side;
        }
    }
}

TEST(IconDrawing, StylesAreHandedDown) {
    const QByteArray known = Svg(R"(<!-- all that is known --><path d="M1 1h8v8z"/>
        <g fill="#ff0000" stroke="#00f" stroke-width="2">
          <rect x="12" y="2" width="9" height="6" rx="2"/>
          <g stroke-linecap="round" fill="none"><path d="M4 12l5 5l-6-1"/></g>
          <ellipse cx="17" cy="15" rx="5" ry="3" stroke="none"/>
          <circle cx="17" cy="20" r="2" fill="#080" stroke-linejoin="round"/>
        </g>)");
    const DrawingFile file(known);
    ASSERT_TRUE(file.IsWritten());
    EXPECT_LT(Difference(ImageOf(IconDrawing(file.Name()), 96), ImageOfSvg(known, {96, 96}, Qt::transparent)),
              0.045);
}

TEST(IconDrawing, StandsInTheMiddleOfItsArea) {
    const DrawingFile file(Svg(R"(<rect x="0" y="0" width="24" height="24"/>)"));
    const QImage image = IconDrawing(file.Name()).At({60, 20}).toImage();
    EXPECT_EQ(qAlpha(image.pixel(19, 10)), 0);
    EXPECT_EQ(qAlpha(image.pixel(20, 0)), 255);
    EXPECT_EQ(qAlpha(image.pixel(39, 19)), 255);
    EXPECT_EQ(qAlpha(image.pixel(40, 10)), 0);
}

TEST(IconDrawing, WhatItDoesNotKnowIsRefused) {
    EXPECT_THROW(IconDrawing("/no/such/drawing.svg"), RuntimeError);
    const QByteArray dot = R"(<circle cx="1" cy="1" r="1"/>)";
    EXPECT_NO_THROW(IconDrawing(DrawingFile(Svg(dot)).Name()));
    for (const QByteArray &content :
         {QByteArray(), QByteArray("no drawing"), QByteArray("<html/>"),
          QByteArray(R"(<svg xmlns="http://www.w3.org/2000/svg"/>)"), Svg(dot).chopped(3), Svg(dot + "<"),
          Svg("<text>A</text>"), Svg("<g><title/></g>"), Svg("<linearGradient/>"),
          Svg("<g transform='scale(2)'/>"), Svg(R"(<circle cx="1" cy="1"/>)"),
          Svg(R"(<circle cx="1" cy="1" r="1" opacity="0.5"/>)"), Svg(R"(<circle cx="1" cy="1" r="wide"/>)"),
          Svg(R"(<path d="M0 0q1 1 2 2"/>)"), Svg("<g fill='url(#shade)'/>"),
          Svg(R"(<g stroke-linejoin="bevel"/>)"), Svg(R"(<path d="M0 0"><animate/></path>)")}) {
        const DrawingFile file(content);
        ASSERT_TRUE(file.IsWritten());
        EXPECT_THROW(IconDrawing(file.Name()), RuntimeError) << content.toStdString();
    }
}
