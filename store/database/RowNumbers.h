#pragma once

#include "store/database/Connection.h"

#include <string_view>

namespace kelvaro::store {

/// Gives the rows of a table whose numbers are beyond 32 bits the next free ones. The program cannot read
/// such a number, and as new numbers go on from the highest, every row after it would be lost to the lists as
/// well. To be called before a row is inserted; does nothing in a sound table. Raises StoreError.
void BringNumbersBack(std::string_view table, std::string_view key, Connection &connection);

} // namespace kelvaro::store
