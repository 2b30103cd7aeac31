#pragma once

#include <string_view>

namespace kelvaro {

/// Reads degrees kept as text.
class clsDecimal {
public:
    /// Decimal degrees of a text "DDD.MM.SS" ("011.06.40"): three digits, any separator, two digits, any
    /// separator, two digits. Raises ConversionError where one of the three places is not numeric.
    double FnFindDecimal(std::string_view text) const;
};

} // namespace kelvaro
