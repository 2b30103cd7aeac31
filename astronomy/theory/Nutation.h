#pragma once

namespace kelvaro {

/// Nutation, degrees.
struct Nutation {
    double longitude = 0;
    double obliquity = 0;
};

/// The thirteen largest terms of Woolard's theory. `centuries` are Julian centuries from 1900 January 0.5.
Nutation FnFindNutation(double centuries);

} // namespace kelvaro
