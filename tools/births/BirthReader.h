#pragma once

#include "horoscope/record/HoroscopeState.h"

#include <stdexcept>
#include <string_view>

namespace kelvaro {

/// Says in one sentence why a line is no valid birth.
class BirthError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads a birth from one line, a JSON object, into the birth details and the preferences of the record.
///
/// Numbers may come as numbers or as texts. Date, clock, place and zone are required; other texts are empty
/// and preferences are those of a new record where their keys are missing; unknown keys are passed over.
/// Raises BirthError and leaves the record as it was when the line is no such object, a required key is
/// missing, or a value is out of its range.
void ReadBirth(std::string_view line, HoroscopeState &state);

} // namespace kelvaro
