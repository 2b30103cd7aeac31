#pragma once

namespace kelvaro {

/// Watches a stretch of floating-point work and turns a fault in it into an error.
///
/// The processor notes an invalid operation, a division by zero and an overflow in flags that stay set, so a
/// fault is found even where its infinity has since become an ordinary number (the arc tangent of an infinity
/// is one). Work to be watched must reach memory that other functions can see, such as a member or a result,
/// before `Check` is called; arithmetic on a local value alone may be moved past the call by the compiler.
class FloatingPointGuard {
public:
    /// Clears the flags, so that faults of earlier work are not blamed on this one.
    FloatingPointGuard() noexcept;

    /// Raises an ArithmeticError that names the step when a fault was noted since construction.
    void Check(const char *step) const;
};

} // namespace kelvaro
