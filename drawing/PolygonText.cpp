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
constexpr std::size_t mostEntriesBroken = 12;

/// In font sizes.
struct Spacing {
    double entries; ///< between two entries of a line
    double figures; ///< between a name and its figure
    double columns; ///< between two columns of entries with figures
    double pitch;   ///< of lines, at most
};

constexpr Spacing usualSpacing{0.62, 0.55, 1.1, 10};
constexpr Spacing closeSpacing{0.32, 0.4, 0.7, 1.05};

const Spacing &SpacingOf(const CellText &text) {
    return text.isPacked ? closeSpacing : usualSpacing;
}

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
    BlockBuilder(const ChartFont &font, const Spacing &spacing)
        : font_(font), pitch_(std::min(font.LinePitch(), spacing.pitch)) {}

    void AddRun(const QString &text, Tone tone, double x) { block_.runs.push_back({text, tone, {x, y_}}); }

    void EndLine(double left, double right) {
        for (const double x : {left, right}) {
            block_.corners.emplace_back(x, y_ - font_.Ascent());
            block_.corners.emplace_back(x, y_ + font_.Descent());
        }
        y_ += pitch_;
    }

    TextBlock Finish() {
        const double bottom = y_ - pitch_ + font_.Descent();
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
    double pitch_;
    TextBlock block_;
    double y_ = 0;
};

/// The widths that entries with figures need below one another.
struct FigureColumn {
    double names = 0;
    double wholes = 0; ///< of the figures up to their points
    double rests = 0;

    double Width(const Spacing &spacing) const { return names + spacing.figures + wholes + rests; }
};

double WholeWidth(const CellEntry &entry, const ChartFont &font) {
    return font.Width(entry.figure.section(u'.', 0, 0), Tone::Figure);
}

FigureColumn MeasuredColumn(const CellText &text, const ChartFont &font) {
    FigureColumn column;
    for (const CellEntry &entry : text.entries) {
        const double whole = WholeWidth(entry, font);
        column.names = std::max(column.names, entry.width);
        column.wholes = std::max(column.wholes, whole);
        column.rests = std::max(column.rests, font.Width(entry.figure, Tone::Figure) - whole);
    }
    return column;
}

/// Names to the left, figures to the right with their points below each other, in as many columns beside one
/// another; read row by row.
TextBlock ColumnBlock(const CellText &text, const ChartFont &font, std::size_t columns) {
    const FigureColumn column = MeasuredColumn(text, font);
    const Spacing &spacing = SpacingOf(text);
    const double pitch = column.Width(spacing) + spacing.columns;
    const double width = static_cast<double>(columns) * pitch - spacing.columns;
    BlockBuilder builder(font, spacing);
    for (std::size_t index = 0; index < text.entries.size(); ++index) {
        const CellEntry &entry = text.entries[index];
        const double left = static_cast<double>(index % columns) * pitch - width / 2;
        const double point = left + column.Width(spacing) - column.rests;
        builder.AddRun(entry.name, entry.tone, left);
        builder.AddRun(entry.figure, Tone::Figure, point - WholeWidth(entry, font));
        if (index % columns == columns - 1 || index + 1 == text.entries.size()) {
            builder.EndLine(-width / 2, width / 2);
        }
    }
    return builder.Finish();
}

/// The room behind an entry of a line.
double GapBehind(std::size_t entry, const CellText &text, const ChartFont &font) {
    return text.runsOn && !text.isPacked ? font.Width(QString(entry == 0 ? 4 : 2, u' '), Tone::Name)
                                         : SpacingOf(text).entries;
}

/// Where the lines of a block meet its axis: in their middles, at their beginnings or at their ends.
enum class Lean { None, Left, Right };

double StartOfLine(double width, Lean lean) {
    switch (lean) {
    case Lean::Left:
        return 0;
    case Lean::Right:
        return -width;
    case Lean::None:
        break;
    }
    return -width / 2;
}

/// The entries with a line break behind each one whose bit is set.
TextBlock FlowBlock(const CellText &text, const ChartFont &font, std::uint32_t breaks, Lean lean) {
    BlockBuilder builder(font, SpacingOf(text));
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
        const double left = StartOfLine(width, lean);
        double x = left;
        for (std::size_t index = first; index <= last; ++index) {
            const CellEntry &entry = text.entries[index];
            builder.AddRun(entry.name, entry.tone, x);
            x += entry.width + GapBehind(index, text, font);
        }
        builder.EndLine(left, left + width);
        first = last + 1;
    }
    return builder.Finish();
}

template <typename Visit> void ForEachBlock(const CellText &text, const ChartFont &font, const Visit &visit) {
    const bool hasFigures =
        std::ranges::any_of(text.entries, [](const CellEntry &entry) { return !entry.figure.isEmpty(); });
    if (hasFigures) {
        visit(ColumnBlock(text, font, 1));
        if (text.isPacked) {
            visit(ColumnBlock(text, font, 2));
        }
        return;
    }
    const bool isListed = text.isListed && !text.isPacked;
    if (isListed || text.entries.size() > mostEntriesBroken) {
        visit(FlowBlock(text, font, ~0U, Lean::None));
        return;
    }
    const std::uint32_t ways = 1U << (text.entries.size() - 1);
    for (std::uint32_t breaks = 0; breaks < ways; ++breaks) {
        visit(FlowBlock(text, font, breaks, Lean::None));
        if (text.isPacked) {
            visit(FlowBlock(text, font, breaks, Lean::Left));
            visit(FlowBlock(text, font, breaks, Lean::Right));
        }
    }
}

} // namespace

ChartFont::ChartFont(const QFont &font, double linePitch)
    : regular_(font), bold_(font), regularMetrics_(QFont()), boldMetrics_(QFont()), linePitch_(linePitch) {
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
