#pragma once

#include "drawing/TableColumns.h"
#include "drawing/TableContent.h"

#include <QPainter>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <cstddef>
#include <vector>

namespace kelvaro {

/// How a table is set. Lengths are in points.
struct TableSetting {
    double points = 10;       ///< of the font
    double leastPoints = 9;   ///< where the room is narrow; titles are smaller by a tenth
    double leastGap = 9;      ///< between columns
    double usualGap = 16;     ///< where there is no room to fill
    double widestGap = 36;    ///< where the room is wide
    double rowPadding = 0.18; ///< above a row and below it, in sizes of the font
    std::size_t rowsBeside =
        0; ///< rows that stand close together, with a little space after them; 0 for what suits
};

/// A table in the manner of a book: rules above and below the titles and at the end, no other lines, rows in
/// small groups. It is measured in points and painted in the units of any painter.
///
/// At first the table is as wide as its texts. No text is ever shortened: in a room too narrow, titles take
/// more lines, then cells do, and then the font becomes smaller.
class TableDrawing {
public:
    explicit TableDrawing(TableContent content, const TableSetting &setting = {});

    /// Lays the columns out anew in a width, of which a narrow table needs only a part.
    void FitTo(double width);

    std::size_t RowCount() const { return rows_.size(); }
    double FontSize() const { return points_; }
    double Width() const { return width_; }

    /// The height of the titles with the rows from one to another, which does not belong to them.
    double HeightOf(std::size_t first, std::size_t last) const;
    QSizeF Size() const { return {width_, HeightOf(0, RowCount())}; }

    /// Paints the whole table from its upper left corner, which is in units of the painter.
    void Paint(QPainter &painter, QPointF topLeft) const { PaintRows(painter, topLeft, 0, RowCount()); }
    /// Paints the titles and some of the rows.
    void PaintRows(QPainter &painter, QPointF topLeft, std::size_t first, std::size_t last) const;

private:
    /// A line of a cell, placed in its row.
    struct Line {
        QString text;
        QFont font;
        double left = 0;
        double baseline = 0;
    };
    struct SetRow {
        std::vector<Line> lines; ///< cell by cell
        double height = 0;
        double gapAbove = 0; ///< left out below the titles
        bool hasRuleAbove = false;
    };

    void SetColumns(std::vector<double> widths, double gap);
    void SetRows();
    std::size_t RowsBeside() const;
    SetRow SetTitles() const;
    SetRow SetHeading(const TableRow &row) const;
    SetRow SetCells(const TableRow &row) const;
    void AddLines(SetRow &row, std::size_t column, const QString &text, const QFont &font) const;

    double TitlesHeight() const;
    double PaintTitles(QPainter &painter, QPointF topLeft) const;
    void PaintRule(QPainter &painter, QPointF left, double thickness) const;

    TableContent content_;
    TableSetting setting_;
    TableColumns columns_;
    double points_;
    double width_ = 0;
    std::vector<double> lefts_; ///< of the columns
    std::vector<double> widths_;
    SetRow titles_;
    std::vector<SetRow> rows_;
};

} // namespace kelvaro
