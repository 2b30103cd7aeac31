#pragma once

#include "runtime/Moment.h"
#include "runtime/Notice.h"
#include "store/database/Connection.h"
#include "store/masters/PlaceLists.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro::store {

/// What the form that saves a new chart is told.
struct ChartToSave {
    std::string Txt_SC_ChartName; ///< the box; only the search for a name already used reads it
    std::string SC_ChartName;     ///< of the person, without the date
    std::string SC_Gender;
    std::string SC_Country; ///< a CountryID
    std::string SC_City;
    Moment SC_Date, SC_Time;
    double SC_LatDeg = 0;
    std::string SC_LatNS;
    double SC_LatMin = 0;
    double SC_LonDeg = 0;
    std::string SC_LonEW;
    double SC_LonMin = 0;
    double SC_TimeDiff = 0; ///< the number of a zone, no hours
};

/// The outcome of saving a chart and what to tell about it.
struct SavedOrNot {
    bool isSaved = false;
    Notice notice;
};

/// A row of `ChartSave`.
struct StoredChart {
    std::int32_t Sno = 0;
    std::string ChartName; ///< "Velnesh~14-Jul-1965"
    std::string Gender;
    std::int32_t Country = 0; ///< a CountryID
    std::string City;
    std::int32_t ChartDay = 0, ChartMonth = 0, ChartYear = 0;
    std::int32_t ChartHour = 0, ChartMinute = 0, ChartSecond = 0; ///< on a 24-hour clock
    Place place;
    std::optional<std::int32_t> TimeDifference; ///< the number of a zone, no hours
};

/// The list of saved charts: its heading and its rows with their chart numbers.
struct ChartList {
    std::string Lab_Details;
    std::vector<ListItem> List_VC_ChartName;
};

/// "Velnesh~14-Jul-1965" of the parts as they stand.
std::string NameWithDate(std::string_view person, std::string_view day, std::string_view month,
                         std::string_view year);

/// The name before the first "~"; the whole text where it has none.
std::string PersonOf(std::string_view nameWithDate);

/// The saved charts. All operations raise StoreError where the database fails, with nothing changed.
class ChartStore {
public:
    /// The connection must outlive the object.
    explicit ChartStore(Connection &connection) : connection_(connection) {}

    /// The charts for "All", "Male" or "Female", or the couples for "G", by name. Nothing for another word.
    ChartList fnFillChart(std::string_view DataGen) const;

    /// Inserts a row, unless the name in the box is that of a stored chart as a whole, date included. Raises
    /// StoreError for a quote in a text.
    SavedOrNot SC_SaveChart(const ChartToSave &chart);

    /// The highest chart number; 0 where there is none.
    std::int32_t NewestNumber() const;

    /// The name with its date under which a chart is stored; nothing where there is no such chart.
    std::optional<std::string> NameOf(std::int32_t number) const;

    /// Raises StoreError when there is no such chart.
    StoredChart Read(std::int32_t number) const;

    /// Writes all fields into the row of that number. Raises StoreError when it has gone.
    void Update(const StoredChart &chart);

    /// A number without a row deletes nothing.
    void Delete(std::int32_t number);

private:
    bool IsNameUsed(std::string_view name) const;

    Connection &connection_;
};

} // namespace kelvaro::store
