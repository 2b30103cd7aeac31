#pragma once

#include <string>
#include <string_view>

namespace kelvaro {

struct BirthFields;

// What the rules for the date and the time of a form ask; those of birth details and of the time converters
// share it.

/// Day, month and year joined by "/".
std::string DateTextOf(const BirthFields &fields);

/// Whether day, month and year are no date.
bool IsNoDate(const BirthFields &fields);

/// Whether the year is below 1800 or above 3000. Raises ConversionError for one that is no number.
bool IsNoYear(const BirthFields &fields);

/// Whether the whole part of a number is negative or above a bound. Raises ConversionError for a text that is
/// no number.
bool IsOutside(std::string_view field, const std::string &number, double highest);

/// The number in a field. Raises ConversionError, which names the field, for a text that is none.
double NumberIn(std::string_view field, const std::string &text);

} // namespace kelvaro
