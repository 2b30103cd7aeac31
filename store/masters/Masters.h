#pragma once

#include "runtime/Notice.h"
#include "store/masters/PlaceLists.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kelvaro::store {

// What the masters of countries, cities and time zones have in common.

/// What came of storing a row of a master, and what to tell about it.
struct Outcome {
    bool isStored = false;
    Notice notice;
};

/// The row that a search selects, or else what it tells.
struct Found {
    std::optional<std::size_t> row;
    std::optional<Notice> notice;
};

/// The cells of the rows of a grid.
using GridRows = std::vector<std::vector<std::string>>;

/// The rows of a country: for a list, with their keys, and as rows of a grid.
struct MasterRows {
    std::vector<ListItem> items;
    GridRows rows;
};

} // namespace kelvaro::store
