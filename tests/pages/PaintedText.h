#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QRectF>
#include <QString>

#include <cmath>
#include <vector>

namespace kelvaro {

/// A piece of text that was painted. Lengths are in points.
struct PaintedText {
    QString text;
    QPointF baseline; ///< its left end
    double width;
    double fontSize;
    bool isBold;
};

/// Notes the texts that are painted on it, and paints nothing.
class TextRecorder : public QPaintDevice, private QPaintEngine {
public:
    static constexpr int dotsPerPoint = 10;

    TextRecorder() : QPaintEngine(AllFeatures) {}

    std::vector<PaintedText> texts;

    QPaintEngine *paintEngine() const override { return const_cast<TextRecorder *>(this); }

private:
    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &newState) override { transform_ = newState.transform(); }
    void drawPixmap(const QRectF & /*target*/, const QPixmap & /*pixmap*/,
                    const QRectF & /*source*/) override {}
    void drawPath(const QPainterPath & /*path*/) override {}
    void drawPolygon(const QPointF * /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF &baseline, const QTextItem &item) override {
        texts.push_back({item.text(), transform_.map(baseline) / dotsPerPoint, item.width() / dotsPerPoint,
                         item.font().pointSizeF(), item.font().bold()});
    }

    int metric(PaintDeviceMetric metric) const override {
        constexpr int size = 20000;
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return size;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 72 * dotsPerPoint;
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(metric);
        }
    }

    QTransform transform_;
};

} // namespace kelvaro
