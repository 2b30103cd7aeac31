#pragma once

#include "runtime/Notice.h"
#include "store/database/Connection.h"

#include <string>

namespace kelvaro::store {

/// The owner's letterhead, the one row of `PersonalDetails`.
struct PersonalDetails {
    std::string Name, Address, Address2, City, Country, Zipcode, Phone, EMail;

    friend bool operator==(const PersonalDetails &, const PersonalDetails &) = default;
};

/// The stored letterhead; where none is stored, one with the maker's name alone. Raises StoreError where the
/// database fails.
PersonalDetails ReadPersonalDetails(Connection &connection);

/// Puts this letterhead in the place of the stored one, unless a line is too long; tells which. Raises
/// StoreError, with the stored one left as it was, where the database fails and for a text with a quote.
Notice SavePersonalDetails(const PersonalDetails &details, Connection &connection);

/// Raises StoreError where the database fails.
void DeletePersonalDetails(Connection &connection);

} // namespace kelvaro::store
