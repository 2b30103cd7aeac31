#pragma once

#include "runtime/Rule.h"
#include "store/database/Connection.h"
#include "store/masters/Masters.h"

#include <array>
#include <string_view>
#include <vector>

namespace kelvaro::store {

/// A name to be given to a country.
struct CountryName {
    Connection &connection;
    std::string_view name; ///< trimmed
    ListItem chosen;       ///< the country to be renamed; key 0 where none is chosen
};

/// The rules of the two tabs, in their order. Raise StoreError for a name with a quote.
extern const std::array<Rule<CountryName>, 3> countryAddRules;
extern const std::array<Rule<CountryName>, 5> countryRenameRules;

/// Adds, renames and finds countries. Notices name the controls of the dialog of countries. All operations
/// raise StoreError, with nothing changed, where the database fails and for a name with a quote.
class CountryMaster {
public:
    /// The connection must outlive the object.
    explicit CountryMaster(Connection &connection) : connection_(connection) {}

    /// All countries with their `CountryID`, by name.
    std::vector<ListItem> Countries() const;

    /// The first country that begins with the trimmed text in any case: the first of all for an empty text.
    static Found Search(const std::vector<ListItem> &countries, std::string_view text);

    /// Adds a country of the trimmed name, which has no time zones yet.
    Outcome Add(std::string_view name);

    /// Gives the chosen country, key 0 where none is chosen, the trimmed name. A name that differs from the
    /// present one in its case alone counts as used.
    Outcome Rename(const ListItem &chosen, std::string_view name);

private:
    Connection &connection_;
};

} // namespace kelvaro::store
