#pragma once

#include <QByteArray>
#include <QPainterPath>

namespace kelvaro {

// The path data of SVG: what stands in the attribute "d" of a path.

/// The outline, in hundredths of a unit at the finest: the digits are few, and the same on every machine.
QByteArray PathDataOf(const QPainterPath &path);

/// The outline that path data tell. Raises RuntimeError for what they do not know, which is less than SVG
/// has: no quadratic curves, and no arcs of turned ellipses.
QPainterPath PathOf(QByteArrayView data);

} // namespace kelvaro
