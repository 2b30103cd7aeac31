#pragma once

#include "drawing/ChartHeading.h"
#include "drawing/Picture.h"
#include "drawing/TableContent.h"

namespace kelvaro {

/// A table below its title and a line that says whose it is, as wide as it needs to be. The note below it,
/// which may be empty, has its own lines.
Picture PictureOf(const TableContent &content, const ChartHeading &heading, const QString &note);

} // namespace kelvaro
