#pragma once

#include "store/database/Connection.h"
#include "store/masters/PlaceLists.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace kelvaro::store {

/// Which zone of the tz database ("Asia/Kolkata") a city lies in. The cities that come with the program have
/// a row each in the table `CityZone`; a city that the user adds takes the zone of the nearest of them in its
/// country. All operations raise StoreError where the database fails.
class CityZones {
public:
    /// The connection must outlive the object.
    explicit CityZones(Connection &connection) : connection_(connection) {}

    /// Whether the database has the table: one that an earlier version of the program made has none.
    bool AreKnown() const;

    /// Copies the table from the database that comes with the program into one that has none, for the cities
    /// that still bear the same name. Does nothing where the table stands, or comes with neither.
    void BringFrom(const std::filesystem::path &programFile);

    /// The zone of the city of that name in the country, or of the first of that name where no country is
    /// given (0). Nothing for a name without such a city; empty where its country has no city with a zone.
    /// Raises StoreError for a name with a quote.
    std::optional<std::string> ZoneOfCity(std::string_view cityName, std::int32_t countryId) const;

    /// The zone of the nearest city of the country that has one; empty where none has.
    std::string ZoneNear(const Place &place, std::int32_t countryId) const;

    /// The zone of a birthplace: of its city, or of the place where the tables have no such city any more.
    /// Empty where there is none to be found.
    std::string ZoneOfBirthplace(std::string_view cityName, const Place &place, std::int32_t countryId) const;

    /// A city that has been moved is found by its new place from now on.
    void Forget(std::int32_t cityId);

private:
    Connection &connection_;
};

} // namespace kelvaro::store
