#pragma once

#include <QFont>
#include <QPaintDevice>
#include <QString>

#include <vector>

namespace kelvaro {

/// A line that a text was broken into.
struct TextLine {
    QString text; ///< without the blanks at its end
    double width = 0;
};

/// The lines of a text in a width, both in units of the device. Lines break between words, and inside a word
/// that is longer than a line. An empty text has no lines. Letters that no font has are stood in for.
std::vector<TextLine> TextLines(const QString &text, const QFont &font, const QPaintDevice &device,
                                double width);

} // namespace kelvaro
