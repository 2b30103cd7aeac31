#pragma once

#include "presentation/ChartStyles.h"
#include "shell/charts/CellLabel.h"
#include "shell/charts/ChartHeading.h"

#include <QString>
#include <QWidget>

#include <array>
#include <string>
#include <vector>

namespace kelvaro {

/// One of the drawings of a chart: the largest square that the frame holds, with twelve cells.
class ChartFrame : public QWidget {
public:
    /// Cell labels are named `labelArray` with an index that counts on from the first of the style.
    ChartFrame(const StyleOfChart &style, const QString &labelArray, QWidget *parent);

    void SetHeading(const ChartHeading &heading);

    /// Shows the bodies of the twelve cells and, in the North drawing, the sign numbers at the houses.
    /// Another style's bodies are left out. The names of the signs, Aries first, are for those who listen.
    void SetCells(const ChartForm &form, const std::array<std::string, 12> &signNames);

    /// The square of the drawing and the outline of one of its cells, in pixels of this frame.
    QRectF Square() const { return square_; }
    QPolygonF CellOutline(std::size_t cell) const;

    QSize minimumSizeHint() const override { return {300, 300}; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool HasSignNumbers() const { return style_ == ChartStyle::North; }
    std::vector<CellEdge> TextEdges(std::size_t cell) const;
    PlacedText PlacedNumber(std::size_t house) const;
    void FitCells();
    void LayOut();
    QRectF HeadingArea() const;

    ChartStyle style_;
    std::array<std::string, 12> ChartForm::*labels_;
    std::array<QPolygonF, 12> outlines_;
    ChartFont font_;
    ChartHeading heading_;
    std::array<CellLabel *, 12> cells_{};
    std::array<CellLabel *, 12> numbers_{}; ///< only in the North drawing
    std::array<CellText, 12> texts_;
    std::array<PlacedText, 12> placed_;
    QRectF square_;
    double lineWidth_ = 1;
};

} // namespace kelvaro
