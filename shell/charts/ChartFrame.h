#pragma once

#include "drawing/ChartDrawing.h"
#include "presentation/ChartStyles.h"
#include "shell/charts/CellLabel.h"
#include "shell/widgets/PictureMenu.h"

#include <QString>
#include <QWidget>

#include <array>
#include <optional>
#include <string>

namespace kelvaro {

/// One of the drawings of a chart: the largest square that the frame holds, with twelve cells. It can be
/// dragged into a document, and its context menu copies and saves it as a picture.
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
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void LayOut();
    Picture AsPicture() const;
    QRectF DrawnArea() const; ///< the square and the heading above it

    std::array<std::string, 12> ChartForm::*labels_;
    ChartDrawing drawing_;
    std::array<CellLabel *, 12> cells_{};
    std::array<CellLabel *, 12> numbers_{}; ///< only in the North drawing
    QRectF square_;
    double lineWidth_ = 1;
    bool cameByKeyboard_ = false;   ///< the focus, which is shown then
    std::optional<QPoint> pressed_; ///< where a drag may begin
    PictureDrag drag_;
};

} // namespace kelvaro
