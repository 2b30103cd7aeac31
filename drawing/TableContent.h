#pragma once

#include "horoscope/record/TextGrid.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

namespace kelvaro {

struct TableCell {
    QString text;
    bool isBold = false;
};

enum class RowKind {
    Plain,
    Heading, ///< its first cell stands alone, above the rows of a section
    Total,   ///< bold, below a rule
};

struct TableRow {
    std::vector<TableCell> cells; ///< as many as there are columns, or fewer
    RowKind kind = RowKind::Plain;

    bool IsBold(std::size_t cell) const { return kind != RowKind::Plain || cells.at(cell).isBold; }
};

/// What a table says.
struct TableContent {
    QStringList titles; ///< of the columns; they set how many there are
    /// Letters "l", "c", "r"; the last one serves for the columns that follow. The letter "h" stands for a
    /// column to the right of whose texts a mark in parentheses hangs, so that figures end below one another.
    QString alignments;
    std::vector<TableRow> rows;

    std::size_t ColumnCount() const { return static_cast<std::size_t>(titles.size()); }
    /// The cells of a row that have a column.
    std::size_t CellCount(const TableRow &row) const;
    QChar AlignmentOf(std::size_t column) const;
};

/// The mark in parentheses at the end of a text, with the blank before it.
QString HangingMark(const QString &text);

/// A row of texts.
TableRow RowOf(const std::vector<std::string> &texts, RowKind kind = RowKind::Plain);

/// The texts of a grid, with its bold cells and a heading for each of its sections.
TableContent ContentOf(const TextGrid &grid, const QString &alignments);

} // namespace kelvaro
