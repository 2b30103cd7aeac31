#pragma once

#include "runtime/Moment.h"

namespace kelvaro {

/// The present date and clock time of the machine, as its user reads them.
Moment Now();

} // namespace kelvaro
