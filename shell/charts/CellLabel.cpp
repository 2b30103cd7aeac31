#include "shell/charts/CellLabel.h"

#include <QPainter>

namespace kelvaro {

CellLabel::CellLabel(const ChartDrawing &drawing, std::size_t cell, Part part, QWidget *parent)
    : QLabel(parent), drawing_(drawing), cell_(cell), part_(part) {
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CellLabel::Cover(const QRect &area, const QRectF &square) {
    setGeometry(area);
    square_ = square.translated(-area.topLeft());
    update();
}

void CellLabel::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    (drawing_.*part_)(painter, cell_, square_);
}

} // namespace kelvaro
