#pragma once

#include "drawing/ChartHeading.h"
#include "drawing/TableContent.h"
#include "horoscope/record/TextGrid.h"

#include <QAbstractTableModel>
#include <QTableView>

#include <optional>
#include <vector>

namespace kelvaro {

/// Rows of a text grid, as a table's model. The first column names the rows; a cell is read aloud with the
/// headings of its row and its column.
class TextGridModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Letters "l", "c", "r" for the alignment of the columns; the last one serves for those that follow.
    void SetAlignments(const QString &letters) { alignments_ = letters; }

    /// Takes over some rows of a grid; row numbers of bold cells are those of the grid.
    void Show(const TextGrid &grid, std::size_t firstRow, std::size_t rowCount);

    /// Makes a row stand out; none for -1.
    void Mark(int row);
    int MarkedRow() const { return markedRow_; }

    /// What the table says, to be drawn elsewhere.
    TableContent Content() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString TextAt(const QModelIndex &index) const;
    QString SpokenText(const QModelIndex &index) const;
    bool IsBold(const QModelIndex &index) const;
    Qt::Alignment AlignmentOf(int column) const;

    QStringList titles_;
    std::vector<std::vector<std::string>> rows_;
    std::vector<TextGrid::Cell> boldCells_;
    QString alignments_ = QStringLiteral("l");
    int markedRow_ = -1;
};

/// A table of texts in the colours of the house, with columns that fit their contents. Selected cells are
/// copied with the headings of their columns and rows; where nothing is selected, the context menu copies the
/// whole table. The right button leaves the selection alone, and Escape clears it.
class TextGridView : public QTableView {
public:
    static constexpr double widestStretch = 1.75; ///< of columns, times what their contents need

    TextGridView(const QString &name, const QString &alignments, QWidget *parent = nullptr);

    void Show(const TextGrid &grid);
    void Show(const TextGrid &grid, std::size_t firstRow, std::size_t rowCount);

    /// What stands above and below the table where it leaves the program as a picture, which its menu offers
    /// from now on.
    void SetHeading(const ChartHeading &heading, const QString &note = {});

    /// What stands above the titles of its columns where it is copied as a table; nothing at first.
    void SetCopiedTitle(const QString &title) { copiedTitle_ = title; }

    /// Keeps the columns wide enough for all rows of a grid, whichever of them are shown.
    void MakeRoomFor(const TextGrid &grid);

    TextGridModel &Rows() { return *model_; }

    /// The least size at which every cell of the table is seen, in a font of that size in points.
    QSize SizeAt(double points) const;

    /// The height of rows in that font when so many of them, with titles, share a room: from close to airy.
    int RowHeightAt(double points, int rows, int room) const;

    /// Lays the table out in that font and gives it its size. Columns share what the width leaves over, up
    /// to `widestStretch`; what is left after that belongs to the last one.
    void LayOut(double points, int width, int rowHeight);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    std::vector<int> ColumnWidths(const QFont &boldFont) const;
    bool HasChosenCells() const;
    QModelIndexList CellsToCopy() const;
    void Copy(const QModelIndexList &cells) const;

    TextGridModel *model_;
    std::optional<ChartHeading> heading_;
    QString note_;
    QString copiedTitle_;
    QStringList widest_; ///< texts of the columns of a grid, of which only some rows may be shown
};

} // namespace kelvaro
