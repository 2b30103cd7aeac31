#pragma once

#include <QPalette>

namespace kelvaro {

/// All colours of what stands on parchment. It is parchment under dark themes too, so none of its colours may
/// be left to the theme.
QPalette ParchmentPalette();

} // namespace kelvaro
