#pragma once

#include "horoscope/record/ChartForm.h"
#include "shell/charts/CellLabel.h"
#include "shell/charts/ChartHeading.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <array>
#include <string>
#include <vector>

namespace kelvaro {

/// Names that depend on the language.
struct ChartNames {
    QStringList lagna; ///< every name that the Lagna goes by
    QStringList signs; ///< Aries first
};

/// One of the drawings of a chart: the largest square that the frame holds, with twelve cells.
class ChartFrame : public QWidget {
public:
    /// Cell labels are named `labelArray` with an index that counts on from `firstIndex`.
    ChartFrame(ChartStyle style, const QString &labelArray, int firstIndex, QWidget *parent);

    void SetHeading(const ChartHeading &heading);
    void SetNames(const ChartNames &names) { names_ = names; }

    /// How the texts of the cells divide; lines in the South drawing and words in the others at first.
    void SetCellFlow(CellFlow flow) { flow_ = flow; }

    /// Shows the texts of the twelve cells and, in the North drawing, the sign numbers at the houses.
    void SetCells(const std::array<std::string, 12> &cells, const std::array<std::string, 12> &signNumbers);

    /// The square of the drawing and the outline of one of its cells, in pixels of this frame.
    QRectF Square() const { return square_; }
    QPolygonF CellOutline(std::size_t cell) const;

    QSize minimumSizeHint() const override { return {160, 160}; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool HasSignNumbers() const { return style_ == ChartStyle::North; }
    std::vector<CellEdge> TextEdges(std::size_t cell) const;
    PlacedText PlacedNumber(std::size_t house) const;
    QString AccessibleTextOf(std::size_t cell) const;
    void FitCells();
    void LayOut();
    QRectF HeadingArea() const;

    ChartStyle style_;
    CellFlow flow_;
    std::array<QPolygonF, 12> outlines_;
    ChartFont font_;
    ChartHeading heading_;
    ChartNames names_;
    std::array<CellLabel *, 12> cells_{};
    std::array<CellLabel *, 12> numbers_{}; ///< only in the North drawing
    std::array<PlacedText, 12> placed_;
    QRectF square_;
    double lineWidth_ = 1;
};

} // namespace kelvaro
