#pragma once

#include <QFont>

namespace kelvaro {

// The fonts that come with the program, so that a page looks the same on every machine and its letters lie in
// the document. Both have figures of equal width and the accents of Latin scripts; letters of other scripts
// are taken from the machine's fonts. A QGuiApplication must exist.
//
// Hinting is off, so that text is exactly proportional to its size, and so are ligatures: a reader of the
// document shall find "fi" as two letters.

enum class Weight { Regular, Bold };

/// For text and tables.
QFont SerifFont(double points, Weight weight = Weight::Regular);

/// For headings of columns, labels and charts.
QFont SansFont(double points, Weight weight = Weight::Regular);

} // namespace kelvaro
