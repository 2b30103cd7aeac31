#include "drawing/PolygonText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

namespace kelvaro {

namespace {

constexpr int referenceSize = 256;
constexpr double entryGap = 0.62;  // between two entries of a line, in font sizes
constexpr double figureGap = 0.55; // between a name and its figure
constexpr std::size_t mostEntriesBroken = 12;

/// One way of setting a text, at font size 1 around its own middle.
struct TextBlock {
    std::vector<PlacedRun> runs;
    std::vector<QPointF> corners; ///< of the boxes of its lines

    std::size_t LineCount() const { return corners.size() / 4; }
};

/// normal * (x, y) + weight * value <= limit
struct Limit {
    QPointF normal;
    double weight = 0;
    double limit = 0;
};

struct Optimum {
    QPointF point;
    double value = 0;
};

using Column = std::array<double, 3>;

double Determinant(const Column &a, const Column &b, const Column &c) {
    return a[0] * (b[1] * c[2] - b[2] * c[1]) - a[1] * (b[0] * c[2] - b[2] * c[0]) +
           a[2] * (b[0] * c[1] - b[1] * c[0]);
}

std::optional<Optimum> Crossing(const Limit &a, const Limit &b, const Limit &c) {
    const Column x{a.normal.x(), b.normal.x(), c.normal.x()};
    const Column y{a.normal.y(), b.normal.y(), c.normal.y()};
    const Column weight{a.weight, b.weight, c.weight};
    const Column limit{a.limit, b.limit, c.limit};
    const double determinant = Determinant(x, y, weight);
    if (std::abs(determinant) < 1e-12) {
        return std::nullopt;
    }
    return Optimum{{Determinant(limit, y, weight) / determinant, Determinant(x, limit, weight) / determinant},
                   Determinant(x, y, limit) / determinant};
}

/// The largest value that some point allows. It is found where three limits cross; where it is reached
/// along a whole stretch, as in a long rectangle, the middle of the stretch is taken.
Optimum LargestValue(const std::vector<Limit> &limits) {
    constexpr double tolerance = 1e-9;
    const auto isAllowed = [&limits](const Optimum &candidate) {
        return std::ranges::all_of(limits, [&candidate](const Limit &limit) {
            return QPointF::dotProduct(limit.normal, candidate.point) + limit.weight * candidate.value <=
                   limit.limit + tolerance;
        });
    };
    Optimum best{{}, std::numeric_limits<double>::lowest()};
    int ties = 0;
    for (std::size_t i = 0; i < limits.size(); ++i) {
        for (std::size_t j = i + 1; j < limits.size(); ++j) {
            for (std::size_t k = j + 1; k < limits.size(); ++k) {
                const auto candidate = Crossing(limits[i], limits[j], limits[k]);
                if (!candidate || candidate->value < best.value - tolerance || !isAllowed(*candidate)) {
                    continue;
                }
                if (candidate->value > best.value + tolerance) {
                    best = {{}, candidate->value};
                    ties = 0;
                }
                best.point += candidate->point;
                ++ties;
            }
        }
    }
    best.point /= std::max(ties, 1);
    return best;
}

/// How far a block of size 1 reaches from its middle towards a border.
double ReachTowards(const TextBlock &block, QPointF normal) {
    double reach = std::numeric_limits<double>::lowest();
    for (const QPointF &corner : block.corners) {
        reach = std::max(reach, QPointF::dotProduct(normal, corner));
    }
    return reach;
}

Optimum LargestBlock(const TextBlock &block, const std::vector<CellEdge> &edges, double margin) {
    std::vector<Limit> limits;
    limits.reserve(edges.size());
    for (const CellEdge &edge : edges) {
        limits.push_back({edge.normal, ReachTowards(block, edge.normal), edge.offset - margin});
    }
    return LargestValue(limits);
}

Optimum RoomiestPlace(const TextBlock &block, const std::vector<CellEdge> &edges, double size) {
    std::vector<Limit> limits;
    limits.reserve(edges.size());
    for (const CellEdge &edge : edges) {
        limits.push_back({edge.normal, 1, edge.offset - size * ReachTowards(block, edge.normal)});
    }
    return LargestValue(limits);
}

/// Builds the block line by line, then moves it to its own middle.
class BlockBuilder {
public:
    explicit BlockBuilder(const ChartFont &font) : font_(font) {}

    void AddRun(const QString &text, Tone tone, double x) { block_.runs.push_back({text, tone, {x, y_}}); }

    void EndLine(double left, double right) {
        for (const double x : {left, right}) {
            block_.corners.emplace_back(x, y_ - font_.Ascent());
            block_.corners.emplace_back(x, y_ + font_.Descent());
        }
        y_ += font_.LinePitch();
    }

    TextBlock Finish() {
        const double bottom = y_ - font_.LinePitch() + font_.Descent();
        const QPointF middle{0, (bottom - font_.Ascent()) / 2};
        for (PlacedRun &run : block_.runs) {
            run.baseline -= middle;
        }
        for (QPointF &corner : block_.corners) {
            corner -= middle;
        }
        return std::move(block_);
    }

private:
    const ChartFont &font_;
    TextBlock block_;
    double y_ = 0;
};

/// Names to the left, figures to the right with their points below each other.
TextBlock ColumnBlock(const CellText &text, const ChartFont &font) {
    const auto whole = [](const CellEntry &entry) { return entry.figure.section(u'.', 0, 0); };
    double names = 0;
    double wholes = 0;
    double rests = 0;
    for (const CellEntry &entry : text.entries) {
        const double wholeWidth = font.Width(whole(entry), Tone::Figure);
        names = std::max(names, entry.width);
        wholes = std::max(wholes, wholeWidth);
        rests = std::max(rests, font.Width(entry.figure, Tone::Figure) - wholeWidth);
    }
    const double width = names + figureGap + wholes + rests;
    const double point = width / 2 - rests;
    BlockBuilder builder(font);
    for (const CellEntry &entry : text.entries) {
        builder.AddRun(entry.name, entry.tone, -width / 2);
        builder.AddRun(entry.figure, Tone::Figure, point - font.Width(whole(entry), Tone::Figure));
        builder.EndLine(-width / 2, width / 2);
    }
    return builder.Finish();
}

/// The room behind an entry of a line.
double GapBehind(std::size_t entry, const CellText &text, const ChartFont &font) {
    return text.runsOn ? font.Width(QString(entry == 0 ? 4 : 2, u' '), Tone::Name) : entryGap;
}

/// The entries with a line break behind each one whose bit is set.
TextBlock FlowBlock(const CellText &text, const ChartFont &font, std::uint32_t breaks) {
    BlockBuilder builder(font);
    std::size_t first = 0;
    for (std::size_t last = 0; last < text.entries.size(); ++last) {
        const bool isEnd =
            last + 1 == text.entries.size() || last >= mostEntriesBroken || ((breaks >> last) & 1U) != 0;
        if (!isEnd) {
            continue;
        }
        double width = 0;
        for (std::size_t index = first; index <= last; ++index) {
            width += text.entries[index].width + (index < last ? GapBehind(index, text, font) : 0);
        }
        double x = -width / 2;
        for (std::size_t index = first; index <= last; ++index) {
            const CellEntry &entry = text.entries[index];
            builder.AddRun(entry.name, entry.tone, x);
            x += entry.width + GapBehind(index, text, font);
        }
        builder.EndLine(-width / 2, width / 2);
        first = last + 1;
    }
    return builder.Finish();
}

template <typename Visit> void ForEachBlock(const CellText &text, const ChartFont &font, const Visit &visit) {
    const bool hasFigures =
        std::ranges::any_of(text.entries, [](const CellEntry &entry) { return !entry.figure.isEmpty(); });
    if (hasFigures) {
        visit(ColumnBlock(text, font));
        return;
    }
    if (text.isListed || text.entries.size() > mostEntriesBroken) {
        visit(FlowBlock(text, font, ~0U));
        return;
    }
    const std::uint32_t ways = 1U << (text.entries.size() - 1);
    for (std::uint32_t breaks = 0; breaks < ways; ++breaks) {
        visit(FlowBlock(text, font, breaks));
    }
}

} // namespace

ChartFont::ChartFont(const QFont &font)
    : regular_(font), bold_(font), regularMetrics_(QFont()), boldMetrics_(QFont()) {
    for (QFont *each : {&regular_, &bold_}) {
        each->setPixelSize(referenceSize);
        each->setHintingPreference(QFont::PreferNoHinting);
    }
    bold_.setBold(true);
    regularMetrics_ = QFontMetricsF(regular_);
    boldMetrics_ = QFontMetricsF(bold_);
    // A letter with the highest and the lowest ink; bold letters stand a little higher.
    const QRectF ink = boldMetrics_.tightBoundingRect(QStringLiteral("Slpg0"));
    ascent_ = -ink.top() / referenceSize;
    descent_ = ink.bottom() / referenceSize;
}

QFont ChartFont::AtSize(double pixels, double dotsPerInch, bool bold) const {
    QFont font = bold ? bold_ : regular_;
    font.setPointSizeF(pixels * 72 / dotsPerInch);
    return font;
}

double ChartFont::Width(const QString &text, Tone tone) const {
    const QFontMetricsF &metrics = tone == Tone::Lagna ? boldMetrics_ : regularMetrics_;
    return metrics.horizontalAdvance(text) / referenceSize;
}

double ChartFont::LinePitch() const {
    return 1.24;
}

std::vector<CellEdge> EdgesOf(const QPolygonF &polygon) {
    QPointF middle;
    for (const QPointF &corner : polygon) {
        middle += corner / static_cast<double>(polygon.size());
    }
    std::vector<CellEdge> edges;
    for (qsizetype index = 0; index < polygon.size(); ++index) {
        const QPointF from = polygon[index];
        const QPointF along = polygon[(index + 1) % polygon.size()] - from;
        QPointF normal = QPointF(along.y(), -along.x()) / std::hypot(along.x(), along.y());
        if (QPointF::dotProduct(normal, middle - from) > 0) {
            normal = -normal;
        }
        edges.push_back({normal, QPointF::dotProduct(normal, from)});
    }
    return edges;
}

CellFitter::CellFitter(CellText text, std::vector<CellEdge> edges, const ChartFont &font)
    : text_(std::move(text)), edges_(std::move(edges)), font_(font) {
    for (CellEntry &entry : text_.entries) {
        entry.width = font_.Width(entry.name, entry.tone);
    }
}

double CellFitter::LargestSize(double margin) const {
    double largest = 0;
    ForEachBlock(text_, font_, [&](const TextBlock &block) {
        largest = std::max(largest, LargestBlock(block, edges_, margin).value);
    });
    return largest;
}

PlacedText CellFitter::Place(double size, double margin) const {
    constexpr double tolerance = 1e-6;
    TextBlock best;
    Optimum place{{}, std::numeric_limits<double>::lowest()};
    // What runs on is good enough where it fits, and the better the fewer lines it takes.
    const auto linesThatFit = [&](const TextBlock &block, const Optimum &where) {
        const bool fits = where.value >= margin - tolerance;
        return text_.runsOn && fits ? block.LineCount() : std::numeric_limits<std::size_t>::max();
    };
    ForEachBlock(text_, font_, [&](TextBlock block) {
        const Optimum candidate = RoomiestPlace(block, edges_, size);
        const std::size_t lines = linesThatFit(block, candidate);
        const std::size_t bestLines = linesThatFit(best, place);
        if (lines < bestLines || (lines == bestLines && candidate.value > place.value + tolerance)) {
            place = candidate;
            best = std::move(block);
        }
    });
    for (PlacedRun &run : best.runs) {
        run.baseline = place.point + size * run.baseline;
    }
    return {size, std::move(best.runs)};
}

} // namespace kelvaro
