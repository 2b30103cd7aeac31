#include "drawing/IconDrawing.h"

#include "drawing/PathData.h"
#include "runtime/RuntimeError.h"

#include <QColor>
#include <QFile>
#include <QHash>
#include <QIODevice>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>

namespace kelvaro {

/// Reads one file.
class IconReader {
public:
    IconReader(const QString &name, IconDrawing &drawing) : name_(name), file_(name), drawing_(drawing) {
        if (!file_.open(QIODevice::ReadOnly)) {
            Refuse(file_.errorString());
        }
        xml_.setDevice(&file_);
    }

    void Read() {
        if (!xml_.readNextStartElement() || xml_.name() != u"svg") {
            Refuse(QStringLiteral("it is no SVG file"));
        }
        Attributes attributes = TakeAttributes();
        attributes.remove(QStringLiteral("width"));
        attributes.remove(QStringLiteral("height"));
        const QStringList box = attributes.take(QStringLiteral("viewBox")).split(u' ');
        if (box.size() != 4) {
            Refuse(QStringLiteral("it has no viewBox"));
        }
        drawing_.box_ = {Number(box[0]), Number(box[1]), Number(box[2]), Number(box[3])};
        if (drawing_.box_.isEmpty()) {
            Refuse(QStringLiteral("its viewBox is empty"));
        }
        ReadChildren(StyleWith({Qt::black, PenOfSvg()}, attributes));
        if (xml_.hasError()) {
            Refuse(xml_.errorString());
        }
    }

private:
    using Attributes = QHash<QString, QString>;

    /// What an element hands down to those in it.
    struct Style {
        QBrush fill;
        QPen stroke;
    };

    [[noreturn]] void Refuse(const QString &cause) const {
        throw RuntimeError(
            QStringLiteral("The drawing %1 cannot be read: %2.").arg(name_, cause).toStdString());
    }

    static QPen PenOfSvg() {
        constexpr double mitreLimit = 4;
        QPen pen(Qt::NoBrush, 1, Qt::NoPen, Qt::FlatCap, Qt::SvgMiterJoin);
        pen.setMiterLimit(mitreLimit);
        return pen;
    }

    void ReadChildren(const Style &style) {
        while (xml_.readNextStartElement()) {
            const QString name = xml_.name().toString();
            Attributes attributes = TakeAttributes();
            if (name == u"g") {
                ReadChildren(StyleWith(style, attributes));
                continue;
            }
            const QPainterPath outline = OutlineOf(name, attributes);
            const auto [fill, stroke] = StyleWith(style, attributes);
            drawing_.shapes_.push_back({outline, fill, stroke});
            if (xml_.readNextStartElement()) {
                Refuse(QStringLiteral("a shape holds elements"));
            }
        }
    }

    Attributes TakeAttributes() const {
        Attributes attributes;
        for (const QXmlStreamAttribute &each : xml_.attributes()) {
            attributes.insert(each.qualifiedName().toString(), each.value().toString());
        }
        return attributes;
    }

    QPainterPath OutlineOf(const QString &element, Attributes &attributes) const {
        const auto number = [&](const char *name) {
            return Number(attributes.take(QString::fromLatin1(name)));
        };
        QPainterPath outline;
        if (element == u"path") {
            outline = PathOf(attributes.take(QStringLiteral("d")).toLatin1());
            outline.setFillRule(Qt::WindingFill); // as SVG fills where nothing is said
            return outline;
        }
        if (element == u"circle") {
            const double radius = number("r");
            outline.addEllipse(QPointF(number("cx"), number("cy")), radius, radius);
        } else if (element == u"ellipse") {
            outline.addEllipse(QPointF(number("cx"), number("cy")), number("rx"), number("ry"));
        } else if (element == u"rect") {
            const QRectF rect(number("x"), number("y"), number("width"), number("height"));
            const double radius = attributes.contains(QStringLiteral("rx")) ? number("rx") : 0;
            outline.addRoundedRect(rect, radius, radius);
        } else {
            Refuse(QStringLiteral("it holds the unknown element %1").arg(element));
        }
        return outline;
    }

    /// Takes all attributes that are left.
    Style StyleWith(Style style, const Attributes &attributes) const {
        for (auto each = attributes.begin(); each != attributes.end(); ++each) {
            const QString &name = each.key();
            const QString &value = each.value();
            if (name == u"fill") {
                style.fill = BrushOf(value);
            } else if (name == u"stroke") {
                style.stroke.setBrush(BrushOf(value));
                style.stroke.setStyle(value == u"none" ? Qt::NoPen : Qt::SolidLine);
            } else if (name == u"stroke-width") {
                style.stroke.setWidthF(Number(value));
            } else if (name == u"stroke-linecap" && value == u"round") {
                style.stroke.setCapStyle(Qt::RoundCap);
            } else if (name == u"stroke-linejoin" && value == u"round") {
                style.stroke.setJoinStyle(Qt::RoundJoin);
            } else {
                Refuse(QStringLiteral("it has the unknown attribute %1=\"%2\"").arg(name, value));
            }
        }
        return style;
    }

    QBrush BrushOf(const QString &colour) const {
        if (colour == u"none") {
            return Qt::NoBrush;
        }
        if (!QColor::isValidColor(colour)) {
            Refuse(QStringLiteral("%1 is no colour").arg(colour));
        }
        return QColor(colour);
    }

    double Number(const QString &text) const {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (!isNumber) {
            Refuse(QStringLiteral("\"%1\" is no number").arg(text));
        }
        return number;
    }

    QString name_;
    QFile file_;
    QXmlStreamReader xml_;
    IconDrawing &drawing_;
};

IconDrawing::IconDrawing(const QString &file) {
    IconReader(file, *this).Read();
}

void IconDrawing::Paint(QPainter &painter, const QRectF &area) const {
    const double scale = std::min(area.width() / box_.width(), area.height() / box_.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center());
    painter.scale(scale, scale);
    painter.translate(-box_.center());
    for (const Shape &shape : shapes_) {
        painter.setBrush(shape.fill);
        painter.setPen(shape.stroke);
        painter.drawPath(shape.outline);
    }
    painter.restore();
}

QPixmap IconDrawing::At(QSize size) const {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    Paint(painter, QRectF(QPointF(), size));
    return pixmap;
}

} // namespace kelvaro
