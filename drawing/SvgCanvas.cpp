#include "drawing/SvgCanvas.h"

#include "drawing/PathData.h"
#include "runtime/RuntimeError.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>
#include <QTransform>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace kelvaro {

namespace {

constexpr double millimetresPerInch = 25.4;

/// Without what no XML may hold.
QString XmlText(const QString &text) {
    QString kept;
    for (const char32_t each : text.toUcs4()) {
        if (!QChar::isNonCharacter(each) && QChar::category(each) != QChar::Other_Control) {
            kept += QChar::fromUcs4(each);
        }
    }
    return kept;
}

/// In few digits, by no language's rules.
QString NumberOf(double number) {
    return QString::number(number, 'g', 6);
}

QString WordOf(Qt::PenCapStyle cap) {
    switch (cap) {
    case Qt::SquareCap:
        return QStringLiteral("square");
    case Qt::RoundCap:
        return QStringLiteral("round");
    default:
        return {}; // the usual one
    }
}

QString WordOf(Qt::PenJoinStyle join) {
    switch (join) {
    case Qt::BevelJoin:
        return QStringLiteral("bevel");
    case Qt::RoundJoin:
        return QStringLiteral("round");
    default:
        return {};
    }
}

/// Whether SVG strokes a path as the pen does. The limit of its mitres counts from their inner ends.
bool IsPlain(const QPen &pen) {
    constexpr double usualMitre = 4;
    return pen.style() == Qt::SolidLine && pen.joinStyle() != Qt::SvgMiterJoin &&
           2 * pen.miterLimit() == usualMitre;
}

/// Whether lines keep the same width in all directions.
bool KeepsShapes(const QTransform &transform) {
    const QPointF x(transform.m11(), transform.m12());
    const QPointF y(transform.m21(), transform.m22());
    const double size = QPointF::dotProduct(x, x);
    const double tolerance = 1e-6 * size;
    return std::abs(QPointF::dotProduct(x, y)) < tolerance &&
           std::abs(size - QPointF::dotProduct(y, y)) < tolerance;
}

double ScaleOf(const QTransform &transform) {
    return std::sqrt(std::abs(transform.determinant()));
}

} // namespace

class SvgEngine : public QPaintEngine {
public:
    /// It can do all, so that the painter hands everything on instead of making images of it.
    SvgEngine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }
    Type type() const override { return SVG; }

    void updateState(const QPaintEngineState &now) override {
        const DirtyFlags changes = now.state();
        if (changes.testFlag(DirtyPen)) {
            pen_ = now.pen();
        }
        if (changes.testFlag(DirtyBrush)) {
            brush_ = now.brush();
        }
        if (changes.testFlag(DirtyTransform)) {
            transform_ = now.transform();
        }
        if (changes.testFlag(DirtyOpacity)) {
            opacity_ = now.opacity();
        }
        if ((changes.testFlag(DirtyClipRegion) || changes.testFlag(DirtyClipPath)) &&
            now.clipOperation() != Qt::NoClip) {
            Refuse("a clipped drawing");
        }
        if (changes.testFlag(DirtyCompositionMode) &&
            now.compositionMode() != QPainter::CompositionMode_SourceOver) {
            Refuse("a composed drawing");
        }
    }

    void drawPath(const QPainterPath &path) override {
        Fill(transform_.map(path), brush_);
        Stroke(path);
    }

    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override {
        QPainterPath path;
        path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        path.addPolygon(QPolygonF(QList<QPointF>(points, points + count)));
        if (mode == PolylineMode) {
            Stroke(path);
        } else {
            path.closeSubpath();
            drawPath(path);
        }
    }

    void drawPixmap(const QRectF & /*place*/, const QPixmap & /*pixmap*/, const QRectF & /*part*/) override {
        Refuse("an image");
    }

    void Write(QXmlStreamWriter &xml) const {
        if (!refused_.isEmpty()) {
            throw RuntimeError("A picture in SVG cannot hold " + refused_.toStdString() + ".");
        }
        for (const Drawn &drawn : drawn_) {
            xml.writeEmptyElement(QStringLiteral("path"));
            xml.writeAttributes(drawn.attributes);
            xml.writeAttribute(QStringLiteral("d"), QString::fromLatin1(drawn.data));
        }
    }

private:
    struct Drawn {
        QXmlStreamAttributes attributes;
        QByteArray data;
    };

    /// Told at the end: an error must not fly through a painter.
    void Refuse(const char *what) { refused_ = what; }

    void Fill(const QPainterPath &onDevice, const QBrush &brush) {
        if (brush.style() == Qt::NoBrush || onDevice.isEmpty()) {
            return;
        }
        Drawn drawn;
        AddColour(drawn, "fill", brush);
        if (onDevice.fillRule() == Qt::OddEvenFill) {
            drawn.attributes.append(QStringLiteral("fill-rule"), QStringLiteral("evenodd"));
        }
        Add(std::move(drawn), onDevice);
    }

    void Stroke(const QPainterPath &path) {
        if (pen_.style() == Qt::NoPen || path.isEmpty()) {
            return;
        }
        // A cosmetic pen draws in units of the device.
        const QTransform drawn = pen_.isCosmetic() ? QTransform() : transform_;
        const QPainterPath outline = pen_.isCosmetic() ? transform_.map(path) : path;
        const double width = pen_.widthF() > 0 ? pen_.widthF() : 1;
        if (IsPlain(pen_) && KeepsShapes(drawn)) {
            AddStroke(drawn.map(outline), width * ScaleOf(drawn));
            return;
        }
        QPainterPathStroker stroker(pen_);
        stroker.setWidth(width);
        // Curves are broken into lines where their size on the device wants it.
        stroker.setCurveThreshold(stroker.curveThreshold() / std::max(ScaleOf(drawn), 1e-6));
        QPainterPath stroke = stroker.createStroke(outline);
        stroke.setFillRule(Qt::WindingFill);
        Fill(drawn.map(stroke), pen_.brush());
    }

    void AddStroke(const QPainterPath &onDevice, double width) {
        Drawn drawn;
        drawn.attributes.append(QStringLiteral("fill"), QStringLiteral("none"));
        AddColour(drawn, "stroke", pen_.brush());
        drawn.attributes.append(QStringLiteral("stroke-width"), NumberOf(width));
        if (const QString cap = WordOf(pen_.capStyle()); !cap.isEmpty()) {
            drawn.attributes.append(QStringLiteral("stroke-linecap"), cap);
        }
        if (const QString join = WordOf(pen_.joinStyle()); !join.isEmpty()) {
            drawn.attributes.append(QStringLiteral("stroke-linejoin"), join);
        }
        Add(std::move(drawn), onDevice);
    }

    void AddColour(Drawn &drawn, const char *attribute, const QBrush &brush) {
        if (brush.style() != Qt::SolidPattern) {
            Refuse("a gradient or a pattern");
        }
        const QString name = QString::fromLatin1(attribute);
        drawn.attributes.append(name, brush.color().name());
        const double opacity = brush.color().alphaF() * opacity_;
        if (opacity < 1) {
            drawn.attributes.append(name + QStringLiteral("-opacity"), NumberOf(opacity));
        }
    }

    void Add(Drawn drawn, const QPainterPath &onDevice) {
        drawn.data = PathDataOf(onDevice);
        drawn_.push_back(std::move(drawn));
    }

    QPen pen_;
    QBrush brush_;
    QTransform transform_;
    double opacity_ = 1;
    std::vector<Drawn> drawn_;
    QByteArray refused_;
};

SvgCanvas::SvgCanvas(QSize size, int unitsPerInch)
    : size_(size), unitsPerInch_(unitsPerInch), engine_(std::make_unique<SvgEngine>()) {}

SvgCanvas::~SvgCanvas() = default;

QByteArray SvgCanvas::File(const QString &title, const QString &description) const {
    QByteArray file;
    QXmlStreamWriter xml(&file);
    const auto length = [this](int units) {
        return NumberOf(units * millimetresPerInch / unitsPerInch_) + QStringLiteral("mm");
    };
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(0);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("svg"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
    xml.writeAttribute(QStringLiteral("width"), length(size_.width()));
    xml.writeAttribute(QStringLiteral("height"), length(size_.height()));
    xml.writeAttribute(QStringLiteral("viewBox"),
                       QStringLiteral("0 0 %1 %2").arg(size_.width()).arg(size_.height()));
    xml.writeTextElement(QStringLiteral("title"), XmlText(title));
    xml.writeTextElement(QStringLiteral("desc"), XmlText(description));
    engine_->Write(xml);
    xml.writeEndDocument();
    return file;
}

QPaintEngine *SvgCanvas::paintEngine() const {
    return engine_.get();
}

int SvgCanvas::metric(PaintDeviceMetric metric) const {
    switch (metric) {
    case PdmWidth:
        return size_.width();
    case PdmHeight:
        return size_.height();
    case PdmWidthMM:
        return qRound(size_.width() * millimetresPerInch / unitsPerInch_);
    case PdmHeightMM:
        return qRound(size_.height() * millimetresPerInch / unitsPerInch_);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return unitsPerInch_;
    case PdmNumColors:
        return std::numeric_limits<int>::max();
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace kelvaro
