#include "drawing/TextLines.h"

#include "drawing/StandIns.h"

#include <QTextLayout>

namespace kelvaro {

std::vector<TextLine> TextLines(const QString &text, const QFont &font, const QPaintDevice &device,
                                double width) {
    if (text.isEmpty()) {
        return {};
    }
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const QString drawable = WithStandIns(text, font);
    QTextLayout layout(drawable, QFont(font, &device));
    layout.setTextOption(option);
    layout.beginLayout();
    std::vector<TextLine> lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        QString piece = drawable.mid(line.textStart(), line.textLength());
        while (piece.endsWith(u' ')) {
            piece.chop(1);
        }
        lines.push_back({piece, line.naturalTextWidth()});
    }
    layout.endLayout();
    return lines;
}

} // namespace kelvaro
