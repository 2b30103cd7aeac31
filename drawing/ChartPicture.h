#pragma once

#include "drawing/ChartDrawing.h"
#include "drawing/Picture.h"

namespace kelvaro {

/// A chart with its heading, 12 cm wide, in the font of the house: a picture looks the same whatever machine
/// it was made on.
Picture PictureOf(const ChartContent &content);

} // namespace kelvaro
