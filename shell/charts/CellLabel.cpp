#include "shell/charts/CellLabel.h"

#include "shell/widgets/ChartColours.h"

#include <QPainter>

namespace kelvaro {

CellLabel::CellLabel(QWidget *parent) : QLabel(parent), font_(font()), nameColour_(nameColour) {
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CellLabel::SetPlacedText(const QRect &area, const PlacedText &text, QPointF origin, double side) {
    setGeometry(area);
    text_ = text;
    text_.size *= side;
    for (PlacedRun &run : text_.runs) {
        run.baseline = origin + side * run.baseline - area.topLeft();
    }
    update();
}

void CellLabel::paintEvent(QPaintEvent * /*event*/) {
    if (text_.size <= 0) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::TextAntialiasing);
    for (const PlacedRun &run : text_.runs) {
        painter.setFont(font_.AtSize(text_.size, logicalDpiY(), run.tone == Tone::Lagna));
        painter.setPen(ColourOf(run.tone));
        painter.drawText(run.baseline, run.text);
    }
}

QColor CellLabel::ColourOf(Tone tone) const {
    switch (tone) {
    case Tone::Figure:
        return figureColour;
    case Tone::Lagna:
        return lagnaColour;
    case Tone::Name:
        break;
    }
    return nameColour_;
}

} // namespace kelvaro
