#pragma once

#include "runtime/RuntimeError.h"

#include <cstdio>
#include <cstdlib>

namespace kelvaro {

/// Ends the program where something that must hold does not: the fuzzer then keeps the input.
inline void Require(bool holds, const char *what) {
    if (!holds) {
        std::fprintf(stderr, "Not so: %s\n", what);
        std::abort();
    }
}

/// Does some work that may be refused, as long as it is refused in words. Other exceptions pass through and
/// end the program.
template <typename Work> void MayRefuse(Work work) {
    try {
        work();
    } catch (const RuntimeError &error) {
        Require(*error.what() != '\0', "an error has words");
    }
}

} // namespace kelvaro
