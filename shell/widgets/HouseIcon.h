#pragma once

#include <QColor>
#include <QIcon>
#include <QWidget>

namespace kelvaro {

/// An icon of the house's own set, by the name of its drawing. It is drawn in ink of one colour: that of the
/// present theme's texts where none is named. Raises RuntimeError where there is no such drawing.
QIcon HouseIcon(const char *name, const QColor &ink = {});

/// Gives the usual buttons of a dialog their icons: those that save, add, update, find and close.
void DressButtons(const QWidget &dialog);

} // namespace kelvaro
