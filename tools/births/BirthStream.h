#pragma once

#include "horoscope/Horoscope.h"
#include "tools/births/RunStatus.h"

#include <filesystem>
#include <functional>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace kelvaro {

/// Reads a birth from a line and computes its horoscope. Gives the sentence that tells why there is none, and
/// nothing where there is one.
std::optional<std::string> ComputeBirth(std::string_view line, Horoscope &horoscope, const RunStatus &status);

/// What is done with a line of a stream; the stream ends where it says false.
using BirthAnswer = std::function<bool(std::string_view line, Horoscope &horoscope, const RunStatus &status)>;

/// Hands each line of a stream on. There is one program state for the whole of it, as if the births were
/// entered one after another. The database is a private copy in memory, so that a batch leaves the user's
/// file alone. Raises StoreError when the database cannot be opened and std::ios_base::failure when the
/// stream cannot be read.
void ForEachBirth(const std::filesystem::path &database, std::istream &births, const BirthAnswer &answer);

} // namespace kelvaro
