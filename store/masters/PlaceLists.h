#pragma once

#include "store/database/Connection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro::store {

class Recordset;

/// A row of a list: the text that it shows and the key that it carries along.
struct ListItem {
    std::string text;
    std::int32_t key = 0;

    friend bool operator==(const ListItem &, const ListItem &) = default;
};

/// Degrees and minutes of a place, each with its letter.
struct Place {
    double latDeg = 0;
    double latMin = 0;
    std::string latNS; ///< "N" or "S"
    double lonDeg = 0;
    double lonMin = 0;
    std::string lonEW; ///< "E" or "W"
};

/// The place in the present row of a table of places or charts. Raises like the recordset for a field that
/// cannot be read.
Place PlaceIn(const Recordset &row);

struct Zone {
    std::string place; ///< "Indian Standard Time"
    std::string text;  ///< "Indian Standard Time  (5.5 hrs E)"
    std::int32_t number = 0;
    double hours = 0;      ///< from Greenwich, never negative
    std::string direction; ///< "E" or "W"
};

/// What forms ask of the masters of countries, cities and time zones. All operations raise StoreError where
/// the database fails.
class PlaceLists {
public:
    /// The connection must outlive the object.
    explicit PlaceLists(Connection &connection) : connection_(connection) {}

    /// All countries with their `CountryID`, in the order of the table.
    std::vector<ListItem> Countries() const;

    /// The zones of a country, in the order in which it lists them; none for a country that lists none.
    /// Raises StoreError for a country that does not exist.
    std::vector<Zone> ZonesOf(std::int32_t countryId) const;

    /// The cities of a country with their `CityID`, by name.
    std::vector<ListItem> CitiesOf(std::int32_t countryId) const;

    /// Where a city of that name lies, whatever its country: of two with one name the database decides.
    /// Nothing for a name without a city.
    std::optional<Place> PlaceOfCity(std::string_view cityName) const;

    /// Raises StoreError for a zone that does not exist.
    Zone ZoneNumbered(std::int32_t number) const;

private:
    Connection &connection_;
};

} // namespace kelvaro::store
