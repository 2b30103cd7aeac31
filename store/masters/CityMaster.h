#pragma once

#include "runtime/Rule.h"
#include "store/database/Connection.h"
#include "store/masters/Masters.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvaro::store {

/// The heading row of the grids of cities; its blanks come from the widths of the columns.
inline constexpr std::string_view cityGridHeading =
    "City                        |   LatDeg     |  LatNS    |   LatMin     |   LonDeg     |  LonEW    |   "
    "LonMin     ";

/// A tab of the dialog of cities, as texts.
struct CityFields {
    std::int32_t countryId = 0; ///< of the chosen row; 0 where none is chosen
    std::int32_t cityId = 0;    ///< of the chosen row where a city is edited; 0 where none is chosen
    std::string city;
    std::string latDeg, latMin;
    std::string latNS; ///< "N" or "S"; empty where none is chosen
    std::string lonDeg, lonMin;
    std::string lonEW; ///< "E" or "W"; empty where none is chosen

    friend bool operator==(const CityFields &, const CityFields &) = default;
};

/// The rules of the two tabs, in their order. That the name of a city to be added is new in its country comes
/// before the ranges.
extern const std::array<Rule<CityFields>, 12> cityAddRules;
extern const std::array<Rule<CityFields>, 5> cityAddRanges;
extern const std::array<Rule<CityFields>, 17> cityUpdateRules;

/// Adds, edits and finds cities. Notices name the controls of the dialog of cities. All operations raise
/// StoreError, with nothing changed, where the database fails.
class CityMaster {
public:
    /// The connection must outlive the object.
    explicit CityMaster(Connection &connection) : connection_(connection) {}

    /// The cities of a country with their `CityID`, by name.
    MasterRows Cities(std::int32_t countryId) const;

    /// Adds a city under its trimmed name where no rule is broken. The name must be new in its country only.
    /// Raises StoreError for a name with a quote.
    Outcome Add(const CityFields &fields);

    /// Puts the details of the city of that name into the fields. The country plays no part: of two cities
    /// with one name the database decides. Raises StoreError for a name with a quote or without a city.
    ///
    /// A name that is too long for a line is shown shortened, and no row has the shortened one: its city is
    /// found by its key.
    void Show(const ListItem &city, CityFields &fields) const;

    /// Writes name and place into the row of the chosen city where no rule is broken. Unlike `Add` it has no
    /// rule of its own for an empty latitude degree, and none for a name in use.
    Outcome Update(const CityFields &fields);

    /// The first row that begins with the trimmed text in any case.
    static Found Find(const GridRows &rows, std::string_view text);

private:
    bool IsNameUsed(const CityFields &fields) const;

    Connection &connection_;
};

} // namespace kelvaro::store
