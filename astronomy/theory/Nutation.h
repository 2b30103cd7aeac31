#pragma once

namespace kelvaro {

/// Nutation in longitude, degrees: the thirteen largest terms of Woolard's theory. That in obliquity serves
/// nothing here, since the Lagna is found by the mean obliquity. `centuries` are Julian centuries from 1900
/// January 0.5.
double FnFindNutation(double centuries);

} // namespace kelvaro
