#pragma once

#include "runtime/Rule.h"
#include "store/database/Connection.h"
#include "store/masters/Masters.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace kelvaro::store {

/// The heading row of the grids of time zones.
inline constexpr std::string_view zoneGridHeading =
    "Time Zone                        |   Number     |   Hours     |    East / West    ";

/// A tab of the dialog of time zones, as texts.
struct ZoneFields {
    std::int32_t countryId = 0; ///< of the chosen row; 0 where none is chosen
    std::int32_t zoneId = 0;    ///< `SNo` of the chosen row where a zone is edited; 0 where none is chosen
    std::string place;          ///< the name of the zone
    std::string hours, minutes;
    std::string direction; ///< "E" or "W"; empty where none is chosen

    friend bool operator==(const ZoneFields &, const ZoneFields &) = default;
};

/// The rules of the two tabs, in their order.
extern const std::array<Rule<ZoneFields>, 11> zoneAddRules;
extern const std::array<Rule<ZoneFields>, 11> zoneUpdateRules;

/// Adds and edits time zones and keeps the countries' lists of them. Notices name the controls of the dialog
/// of time zones. All operations raise StoreError, with nothing changed, where the database fails.
class TimeZoneMaster {
public:
    /// Tells the user something and comes back when it is read.
    using Teller = std::function<void(const Notice &)>;

    /// The connection must outlive the object.
    explicit TimeZoneMaster(Connection &connection) : connection_(connection) {}

    /// The zones of a country with their `SNo`, in the order in which it lists them. Raises StoreError for a
    /// country that does not exist.
    MasterRows Zones(std::int32_t countryId) const;

    /// Adds a zone under its trimmed name to the end of its country's list where no rule is broken. What
    /// will be stored is announced before anything is. Raises StoreError for a name with a quote.
    Outcome Add(const ZoneFields &fields, const Teller &announce);

    /// Puts the details of a zone into the fields. The digits behind the point of its hours stand as they are
    /// in the minutes: 5.5 hours show as 5 and 5, 11 hours as 11 and 00.
    void Show(std::int32_t zoneId, ZoneFields &fields) const;

    /// Writes the fields into the row of the chosen zone where no rule is broken. What will be stored is
    /// announced before anything is. A zone that `Show` has filled in and nobody has corrected is stored with
    /// the shown minutes: 5.5 hours become 5 hours 5 minutes.
    Outcome Update(const ZoneFields &fields, const Teller &announce);

private:
    Connection &connection_;
};

} // namespace kelvaro::store
