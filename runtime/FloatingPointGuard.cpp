#include "runtime/FloatingPointGuard.h"

#include "runtime/RuntimeError.h"
#include "system/System.h"

#include <cfenv>
#include <string>

namespace kelvaro {

namespace {

constexpr int watched = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW;

} // namespace

FloatingPointGuard::FloatingPointGuard() noexcept {
    // Clearing costs much more than looking, and there is seldom anything to clear.
    if (FloatingPointFaults(watched) != 0) {
        std::feclearexcept(watched);
    }
}

void FloatingPointGuard::Check(const char *step) const {
    const int raised = FloatingPointFaults(watched);
    if (raised == 0) {
        return;
    }
    std::feclearexcept(watched);
    const char *fault = (raised & FE_DIVBYZERO) != 0  ? "Division by zero in "
                        : (raised & FE_OVERFLOW) != 0 ? "Overflow in "
                                                      : "Invalid floating-point operation in ";
    throw ArithmeticError(std::string(fault) + step);
}

} // namespace kelvaro
