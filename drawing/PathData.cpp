#include "drawing/PathData.h"

#include "runtime/RuntimeError.h"

#include <QPointF>
#include <QtMath>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <optional>

namespace kelvaro {

namespace {

constexpr qint64 partsOfUnit = 100;

/// A point in parts of a unit. Each step leads from one such point to another, so that what is rounded does
/// not add up.
struct PartPoint {
    qint64 x = 0;
    qint64 y = 0;

    bool operator==(const PartPoint &other) const = default;
};

PartPoint PartsOf(QPointF point) {
    return {std::llround(point.x() * partsOfUnit), std::llround(point.y() * partsOfUnit)};
}

class PathWriter {
public:
    explicit PathWriter(const QPainterPath &path) {
        for (int index = 0; index < path.elementCount(); ++index) {
            const auto point = [&](int next) { return PartsOf(path.elementAt(index + next)); };
            switch (path.elementAt(index).type) {
            case QPainterPath::MoveToElement:
                MoveTo(point(0));
                break;
            case QPainterPath::LineToElement:
                LineTo(point(0), EndsAt(path, index));
                break;
            case QPainterPath::CurveToElement:
                CurveTo(point(0), point(1), point(2));
                index += 2;
                CloseIf(EndsAt(path, index));
                break;
            case QPainterPath::CurveToDataElement:
                break;
            }
        }
    }

    const QByteArray &Data() const { return data_; }

private:
    static bool EndsAt(const QPainterPath &path, int index) {
        return index + 1 == path.elementCount() ||
               path.elementAt(index + 1).type == QPainterPath::MoveToElement;
    }

    void MoveTo(PartPoint point) {
        Command('m');
        Step(point);
        current_ = start_ = point;
    }

    void LineTo(PartPoint point, bool isLast) {
        // The closing draws it.
        if (!isLast || point != start_) {
            if (point.y == current_.y) {
                Command('h');
                Number(point.x - current_.x);
            } else if (point.x == current_.x) {
                Command('v');
                Number(point.y - current_.y);
            } else {
                Command('l');
                Step(point);
            }
        }
        current_ = point;
        CloseIf(isLast);
    }

    void CurveTo(PartPoint first, PartPoint second, PartPoint end) {
        Command('c');
        Step(first);
        Step(second);
        Step(end);
        current_ = end;
    }

    void CloseIf(bool isLast) {
        if (isLast && current_ == start_) {
            Command('z');
        }
    }

    /// One that goes on needs no letter.
    void Command(char letter) {
        if (letter != last_ || letter == 'm') {
            data_ += letter;
        }
        last_ = letter;
    }

    void Step(PartPoint to) {
        Number(to.x - current_.x);
        Number(to.y - current_.y);
    }

    void Number(qint64 parts) {
        if (parts < 0) {
            data_ += '-';
        } else if (std::strchr("mhvlc", data_.back()) == nullptr) {
            data_ += ' ';
        }
        const qint64 size = std::abs(parts);
        if (size >= partsOfUnit || size == 0) {
            data_ += QByteArray::number(size / partsOfUnit);
        }
        if (size % partsOfUnit != 0) {
            QByteArray digits = QByteArray::number(partsOfUnit + size % partsOfUnit);
            if (digits.endsWith('0')) {
                digits.chop(1);
            }
            data_ += digits.replace(0, 1, ".");
        }
    }

    QByteArray data_;
    char last_ = 0;
    PartPoint current_;
    PartPoint start_; ///< of the line that is being drawn
};

struct Arc {
    QPointF radii;
    bool isLarge = false;
    bool isClockwise = false;
};

/// Adds an arc as SVG states it, by its ends. Its middle and angles are found on a circle of radius 1; a
/// curve stands for a quarter of the circle at most.
void AddArc(QPainterPath &path, const Arc &arc, QPointF to) {
    const QPointF from = path.currentPosition();
    if (from == to) {
        return;
    }
    const auto unscaled = [&](QPointF point) {
        return QPointF(point.x() / arc.radii.x(), point.y() / arc.radii.y());
    };
    // Radii that are too short grow until they reach.
    const QPointF chord = unscaled(from - to) / 2;
    const double scale = std::max(1.0, std::hypot(chord.x(), chord.y()));
    const auto onCircle = [&](QPointF point) { return unscaled(point) / scale; };
    const QPointF half = chord / scale;
    const double square = QPointF::dotProduct(half, half);
    const QPointF aside = QPointF(half.y(), -half.x()) * std::sqrt(std::max(0.0, 1 - square) / square);
    const QPointF middle = onCircle(from + to) / 2 + (arc.isLarge == arc.isClockwise ? -aside : aside);
    const auto angleOf = [&](QPointF point) {
        const QPointF radius = onCircle(point) - middle;
        return std::atan2(radius.y(), radius.x());
    };
    double angle = angleOf(from);
    double sweep = angleOf(to) - angle;
    if (arc.isClockwise != (sweep > 0)) {
        sweep += arc.isClockwise ? 2 * M_PI : -2 * M_PI;
    }
    const int curves = std::max(1, qCeil(std::abs(sweep) / M_PI_2 - 1e-6));
    const double step = sweep / curves;
    const double handle = 4.0 / 3 * std::tan(step / 4);
    const auto at = [&](double where, double along) {
        const QPointF radius(std::cos(where), std::sin(where));
        const QPointF point = middle + radius + QPointF(-radius.y(), radius.x()) * along;
        return QPointF(point.x() * arc.radii.x(), point.y() * arc.radii.y()) * scale;
    };
    for (int curve = 1; curve <= curves; ++curve) {
        path.cubicTo(at(angle, handle), at(angle + step, -handle), curve < curves ? at(angle + step, 0) : to);
        angle += step;
    }
}

class PathReader {
public:
    explicit PathReader(QByteArrayView data) : rest_(data.begin()), end_(data.end()), data_(data) {}

    QPainterPath Read() {
        SkipBlanks();
        while (rest_ != end_) {
            if (std::strchr("0123456789-.", *rest_) == nullptr) {
                command_ = *rest_++;
            } else if (command_ == 0 || command_ == 'Z') {
                Refuse();
            }
            Draw();
            SkipBlanks();
        }
        return path_;
    }

private:
    [[noreturn]] void Refuse() const {
        throw RuntimeError("The path \"" + data_.toByteArray().toStdString() + "\" cannot be read.");
    }

    void Draw() {
        isRelative_ = command_ >= 'a' && command_ <= 'z';
        const QPointF before = path_.currentPosition();
        const QPointF handle = handle_.value_or(before);
        handle_.reset();
        if (path_.elementCount() == 0 && command_ != 'M' && command_ != 'm') {
            Refuse();
        }
        switch (isRelative_ ? command_ : static_cast<char>(command_ + ('a' - 'A'))) {
        case 'm':
            path_.moveTo(Point());
            command_ = isRelative_ ? 'l' : 'L'; // further points are lines
            break;
        case 'l':
            path_.lineTo(Point());
            break;
        case 'h':
            path_.lineTo(Number() + (isRelative_ ? before.x() : 0), before.y());
            break;
        case 'v':
            path_.lineTo(before.x(), Number() + (isRelative_ ? before.y() : 0));
            break;
        case 'c':
            CurveFrom(Point());
            break;
        case 's':
            CurveFrom(2 * before - handle);
            break;
        case 'a':
            DrawArc();
            break;
        case 'z':
            path_.closeSubpath();
            command_ = 'Z';
            break;
        default:
            Refuse();
        }
    }

    void CurveFrom(QPointF first) {
        const QPointF second = Point();
        path_.cubicTo(first, second, Point());
        handle_ = second;
    }

    void DrawArc() {
        const double width = Number();
        Arc arc{{width, Number()}};
        if (Number() != 0 || arc.radii.x() <= 0 || arc.radii.y() <= 0) {
            Refuse();
        }
        arc.isLarge = Flag();
        arc.isClockwise = Flag();
        AddArc(path_, arc, Point());
    }

    void SkipBlanks() {
        while (rest_ != end_ && std::strchr(" ,\t\r\n", *rest_) != nullptr) {
            ++rest_;
        }
    }

    double Number() {
        SkipBlanks();
        double number = 0;
        const auto [next, error] = std::from_chars(rest_, end_, number);
        if (error != std::errc() || !std::isfinite(number)) {
            Refuse();
        }
        rest_ = next;
        return number;
    }

    /// One digit, which may stand close to what follows.
    bool Flag() {
        SkipBlanks();
        if (rest_ == end_ || (*rest_ != '0' && *rest_ != '1')) {
            Refuse();
        }
        return *rest_++ == '1';
    }

    QPointF Point() {
        const double x = Number();
        const QPointF point(x, Number());
        return isRelative_ ? path_.currentPosition() + point : point;
    }

    const char *rest_;
    const char *end_;
    QByteArrayView data_;
    QPainterPath path_;
    char command_ = 0;
    bool isRelative_ = false;
    std::optional<QPointF> handle_; ///< of a curve that was drawn last, which the next one may go on from
};

} // namespace

QByteArray PathDataOf(const QPainterPath &path) {
    return PathWriter(path).Data();
}

QPainterPath PathOf(QByteArrayView data) {
    return PathReader(data).Read();
}

} // namespace kelvaro
