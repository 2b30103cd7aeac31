#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPointF>
#include <QPolygonF>
#include <QString>

#include <cstddef>
#include <vector>

namespace kelvaro {

/// How a piece of a chart's text looks.
enum class Tone { Name, Figure, Lagna };

/// The font of a chart at any size. Hinting is off, so that text is exactly proportional to its size and
/// what fits at one size fits at all.
class ChartFont {
public:
    static constexpr double usualPitch = 1.24; ///< of lines, in units of the font's size

    /// Takes the family of the font, not its size.
    explicit ChartFont(const QFont &font, double linePitch = usualPitch);

    QFont AtSize(double pixels, double dotsPerInch, bool bold) const;

    // In units of the font's size.
    double Width(const QString &text, Tone tone) const;
    double Ascent() const { return ascent_; } ///< of letters, above the baseline
    double Descent() const { return descent_; }
    double LinePitch() const { return linePitch_; }

private:
    QFont regular_;
    QFont bold_;
    QFontMetricsF regularMetrics_;
    QFontMetricsF boldMetrics_;
    double ascent_ = 0;
    double descent_ = 0;
    double linePitch_;
};

/// One body of a cell: its name and, where the chart shows degrees, its figure.
struct CellEntry {
    QString name;
    QString figure;
    Tone tone = Tone::Name;
    double width = 0; ///< of the name, in font sizes; set where it is measured
};

/// What a cell says, in reading order.
struct CellText {
    std::vector<CellEntry> entries;
    bool isListed = false; ///< each entry has a line of its own; otherwise entries flow, several to a line
    bool runsOn = false; ///< entries that flow share a line as long as it has room, with blanks between them
    /// A crowded cell: everything stands closer, lines may lean to a side, figures stand in two columns.
    bool isPacked = false;
};

/// A straight border of a convex cell. A point is inside where the product of its place with the outward unit
/// normal is not above the offset.
struct CellEdge {
    QPointF normal;
    double offset = 0;
};

/// The borders of a convex polygon, its corners given in either direction.
std::vector<CellEdge> EdgesOf(const QPolygonF &polygon);

/// A piece of text with the left end of its baseline, in the units of the cell.
struct PlacedRun {
    QString text;
    Tone tone = Tone::Name;
    QPointF baseline;
};

/// The text of one cell, ready to draw.
struct PlacedText {
    double size = 0; ///< of the font, in the units of the cell
    std::vector<PlacedRun> runs;
};

/// Fits the text of a cell into the polygon of the cell.
///
/// Every way of breaking the entries into lines is tried. The lines of a block are centred on one axis,
/// entries with figures stand below one another, names to the left and figures to the right. Entries that run
/// on have four blanks behind the first of them and two behind each other one, as their label has.
class CellFitter {
public:
    CellFitter(CellText text, std::vector<CellEdge> edges, const ChartFont &font);

    bool IsEmpty() const { return text_.entries.empty(); }

    /// The largest font size at which the text keeps a margin to every border.
    double LargestSize(double margin) const;

    /// The text at a size, broken and placed so that it has the most room around it; where entries run on,
    /// broken no more often than the margin to the borders wants.
    PlacedText Place(double size, double margin) const;

private:
    CellText text_;
    std::vector<CellEdge> edges_;
    const ChartFont &font_;
};

} // namespace kelvaro
