#pragma once

#include "horoscope/record/Names.h"

#include <optional>

namespace kelvaro {

/// The names of bodies and rasis in a language; nothing for an unknown one.
std::optional<Names> NamesIn(Language language);

} // namespace kelvaro
