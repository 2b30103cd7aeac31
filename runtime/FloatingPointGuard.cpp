#include "runtime/FloatingPointGuard.h"

#include "runtime/RuntimeError.h"
#include "system/System.h"

#include <cfenv>
#include <string>

namespace kelvaro {

FloatingPointGuard::FloatingPointGuard() noexcept {
    // Clearing costs much more than looking, and there is seldom anything to clear.
    if (FloatingPointFaults() != 0) {
        ClearFloatingPointFaults();
    }
}

void FloatingPointGuard::Check(const char *step) const {
    const int raised = FloatingPointFaults();
    if (raised == 0) {
        return;
    }
    ClearFloatingPointFaults();
    const char *fault = (raised & FE_DIVBYZERO) != 0  ? "Division by zero in "
                        : (raised & FE_OVERFLOW) != 0 ? "Overflow in "
                                                      : "Invalid floating-point operation in ";
    throw ArithmeticError(std::string(fault) + step);
}

} // namespace kelvaro
