#pragma once

#include "horoscope/record/HoroscopeState.h"
#include "store/database/Connection.h"

#include <nlohmann/json.hpp>

namespace kelvaro {

/// The clock of a birthplace by the records of its zone, beside the offset stated for the birth.
///
/// An object with `zone`, `clock` and `stated` in hours from Greenwich, East positive, `summer`, `agrees`,
/// `once` (false for an hour that clocks showed twice or never) and `sure` (false before 1970). An object
/// with an `error` for a city that the database does not know, and where the records do not reach.
nlohmann::ordered_json ZoneCheckJson(const HoroscopeState &state, store::Connection &connection);

} // namespace kelvaro
