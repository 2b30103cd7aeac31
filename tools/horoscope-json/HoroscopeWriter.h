#pragma once

#include "horoscope/Horoscope.h"

#include <nlohmann/json_fwd.hpp>

namespace kelvaro {

/// What a run has computed, by the names of the record and of the views.
///
/// "HoroscopeState" has every result field; moments are serial numbers, and "SunRemark" is there only where
/// it is not empty. Each chart form has "cells", the twelve texts of its visible frame in index order, and
/// "Lab_NHouseNo"; the cells of a form without a visible frame are empty.
nlohmann::ordered_json HoroscopeJson(const Horoscope &horoscope);

} // namespace kelvaro
