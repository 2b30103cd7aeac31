#include "store/masters/PlaceLists.h"

#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/FaultTexts.h"
#include "store/database/NameCollation.h"
#include "store/database/Recordset.h"

namespace kelvaro::store {

namespace {

Recordset Opened(const std::string &statement, Connection &connection) {
    Recordset rows;
    rows.Open(statement, connection);
    return rows;
}

std::vector<ListItem> ItemsOf(Recordset rows, std::string_view textField, std::string_view keyField) {
    std::vector<ListItem> items;
    rows.ForEach([&](const Recordset &row) {
        items.push_back({row.Line(textField), row.Integer(keyField)});
    });
    return items;
}

Zone ZoneIn(const Recordset &row) {
    const std::string place = row.Line("Place");
    const std::string direction = row.Line("TimeZone");
    return {place, place + "  (" + row.Line("TimeDifference") + " hrs " + direction + ")", row.Integer("SNo"),
            row.Number("TimeDifference"), direction};
}

bool IsWholeNumber(std::string_view text) {
    const std::string_view digits = Trimmed(text);
    return !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The parts between the commas; none for the empty text.
std::vector<std::string> SplitAtCommas(std::string_view text) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const auto comma = text.find(',');
        parts.emplace_back(text.substr(0, comma));
        text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    }
    return parts;
}

} // namespace

Place PlaceIn(const Recordset &row) {
    return {row.Number("LatitudeDegree"),  row.Number("LatitudeMinute"),  row.Line("Latitude_NS"),
            row.Number("LongitudeDegree"), row.Number("LongitudeMinute"), row.Line("Longitude_EW")};
}

std::vector<ListItem> PlaceLists::Countries() const {
    return ItemsOf(Opened("Select * From country_master ", connection_), "CountryName", "CountryID");
}

std::vector<Zone> PlaceLists::ZonesOf(std::int32_t countryId) const {
    const Recordset country =
        Opened("select * from Country_Master Where CountryID = " + std::to_string(countryId), connection_);
    std::vector<Zone> zones;
    std::size_t leftOut = 0;
    for (const std::string &number : SplitAtCommas(country.Text("TimeZoneID"))) {
        // What is no number names no zone, and must not become part of the statement.
        if (IsWholeNumber(number)) {
            Opened("select * from TimeZone where SNo = " + number + " order by Place", connection_)
                .ForEach([&zones](const Recordset &row) { zones.push_back(ZoneIn(row)); });
        } else {
            ++leftOut;
        }
    }
    if (leftOut > 0) {
        connection_.TellRowsLeftOut(
            RowsLeftOut("from TimeZone", leftOut,
                        country.Line("CountryName") + " lists \"" + country.Line("TimeZoneID") + "\""));
    }
    return zones;
}

std::vector<ListItem> PlaceLists::CitiesOf(std::int32_t countryId) const {
    return ItemsOf(Opened("Select * From city_master where countryid = " + std::to_string(countryId) +
                              " Order by CityName" + std::string(inAnyCase),
                          connection_),
                   "cityName", "CityID");
}

std::optional<Place> PlaceLists::PlaceOfCity(std::string_view cityName) const {
    const Recordset row =
        Opened("Select * from City_Master where CityName = " + Quoted(cityName) + std::string(inAnyCase),
               connection_);
    if (row.IsEndOfFile()) {
        return std::nullopt;
    }
    return PlaceIn(row);
}

Zone PlaceLists::ZoneNumbered(std::int32_t number) const {
    return ZoneIn(Opened("Select * From TimeZone where Sno = " + std::to_string(number), connection_));
}

} // namespace kelvaro::store
