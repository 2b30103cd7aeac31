#pragma once

#include "drawing/ChartDrawing.h"
#include "presentation/ChartStyles.h"
#include "shell/charts/CellLabel.h"

#include <QString>
#include <QWidget>

#include <array>
#include <string>

namespace kelvaro {

/// One of the drawings of a chart: the largest square that the frame holds, with twelve cells.
class ChartFrame : public QWidget {
public:
    /// Cell labels are named `labelArray` with an index that counts on from the first of the style.
    ChartFrame(const StyleOfChart &style, const QString &labelArray, QWidget *parent);

    /// Shows the bodies of the twelve cells and, in the North drawing, the sign numbers at the houses.
    /// Another style's bodies are left out. The names of the signs, Aries first, are for those who listen.
    void Show(const ChartForm &form, const ChartHeading &heading,
              const std::array<std::string, 12> &signNames);

    const ChartDrawing &Drawing() const { return drawing_; }

    /// The square of the drawing and the outline of one of its cells, in pixels of this frame.
    QRectF Square() const { return square_; }
    QPolygonF CellOutline(std::size_t cell) const;

    QSize minimumSizeHint() const override { return {300, 300}; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void LayOut();

    std::array<std::string, 12> ChartForm::*labels_;
    ChartDrawing drawing_;
    std::array<CellLabel *, 12> cells_{};
    std::array<CellLabel *, 12> numbers_{}; ///< only in the North drawing
    QRectF square_;
    double lineWidth_ = 1;
};

} // namespace kelvaro
