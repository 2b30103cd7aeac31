#pragma once

#include "shell/charts/PolygonText.h"

#include <QLabel>

namespace kelvaro {

/// The label of one cell of a chart. It keeps the cell's text as it was filled and draws it as it was placed.
class CellLabel : public QLabel {
public:
    explicit CellLabel(QWidget *parent);

    /// Covers a part of the parent and draws text there. The text is in units of a square that starts at
    /// `origin` and has the side `side`, both in pixels of the parent.
    void SetPlacedText(const QRect &area, const PlacedText &text, QPointF origin, double side);

    void SetChartFont(const ChartFont &font) { font_ = font; }

    /// Draws names in this colour instead of their own.
    void SetNameColour(const QColor &colour) { nameColour_ = colour; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor ColourOf(Tone tone) const;

    ChartFont font_;
    QColor nameColour_;
    PlacedText text_; ///< in pixels of this label
};

} // namespace kelvaro
