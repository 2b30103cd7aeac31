#pragma once

#include "store/database/Connection.h"

#include <span>
#include <string>

namespace kelvaro::store {

/// A row of `tempBhukthi`, as texts in the language in force.
struct Bhukti {
    std::string dasa, bhukti;
    std::string start, end; ///< dates
    std::string age;        ///< at start and end
};

/// Adds the bhuktis of a chart, all or none. `chartNumber` is that of the saved chart, 0 for an unsaved one.
/// Raises StoreError.
void AddBhuktis(Connection &connection, long chartNumber, std::span<const Bhukti> bhuktis);

} // namespace kelvaro::store
