#include "runtime/FloatingPointGuard.h"

#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace kelvaro {
namespace {

// Operands and results stand in memory, so that the processor and not the compiler does the arithmetic.
volatile double zero = 0;
volatile double one = 1;
volatile double huge = 1e300;
volatile double result = 0;

struct Fault {
    const char *name;
    void (*work)();
    const char *description;
};

const Fault faults[] = {
    {"division by zero", [] { result = one / zero; }, "Division by zero in step"},
    {"zero by zero", [] { result = zero / zero; }, "Invalid floating-point operation in step"},
    {"root of a negative", [] { result = std::sqrt(-one); }, "Invalid floating-point operation in step"},
    {"overflow", [] { result = huge * huge; }, "Overflow in step"},
};

TEST(FloatingPointGuard, RaisesOnFaults) {
    for (const Fault &fault : faults) {
        const FloatingPointGuard guard;
        fault.work();
        try {
            guard.Check("step");
            ADD_FAILURE() << fault.name << " went unnoticed";
        } catch (const ArithmeticError &error) {
            EXPECT_STREQ(error.what(), fault.description) << fault.name;
        }
        EXPECT_NO_THROW(guard.Check("step")) << fault.name << " was blamed twice";
    }
}

TEST(FloatingPointGuard, IsQuietAfterEarlierFaultsAndOnSoundWork) {
    for (const Fault &fault : faults) {
        fault.work();
        const FloatingPointGuard guard;
        result = std::atan2(one, zero) + one / 3 + std::exp(-huge); // inexact and underflowing, and allowed
        EXPECT_NO_THROW(guard.Check("step")) << fault.name;
    }
}

} // namespace
} // namespace kelvaro
