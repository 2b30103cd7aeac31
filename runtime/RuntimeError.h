#pragma once

#include <stdexcept>
#include <string>

namespace kelvaro {

/// An error of the running program, with a description that can be shown to the user as it stands.
class RuntimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A floating-point step that was invalid, divided by zero or overflowed.
class ArithmeticError : public RuntimeError {
public:
    using RuntimeError::RuntimeError;
};

/// A number or a date that does not fit the range of its type.
class OverflowError : public RuntimeError {
public:
    using RuntimeError::RuntimeError;
};

/// A text that cannot be read as the number or the date that was wanted.
class ConversionError : public RuntimeError {
public:
    using RuntimeError::RuntimeError;
};

} // namespace kelvaro
