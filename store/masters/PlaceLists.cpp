#include "store/masters/PlaceLists.h"

#include "store/database/Dialect.h"
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
    for (; !rows.IsEndOfFile(); rows.MoveNext()) {
        items.push_back({rows.Text(textField), rows.Integer(keyField)});
    }
    return items;
}

Zone ZoneIn(const Recordset &row) {
    const std::string place = row.Text("Place");
    const std::string direction = row.Text("TimeZone");
    return {place, place + "  (" + row.Text("TimeDifference") + " hrs " + direction + ")", row.Integer("SNo"),
            row.Number("TimeDifference"), direction};
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

std::vector<ListItem> PlaceLists::Countries() const {
    return ItemsOf(Opened("Select * From country_master ", connection_), "CountryName", "CountryID");
}

std::vector<Zone> PlaceLists::ZonesOf(std::int32_t countryId) const {
    const Recordset country =
        Opened("select * from Country_Master Where CountryID = " + std::to_string(countryId), connection_);
    std::vector<Zone> zones;
    for (const std::string &number : SplitAtCommas(country.Text("TimeZoneID"))) {
        Recordset rows =
            Opened("select * from TimeZone where SNo = " + number + " order by Place", connection_);
        for (; !rows.IsEndOfFile(); rows.MoveNext()) {
            zones.push_back(ZoneIn(rows));
        }
    }
    return zones;
}

std::vector<ListItem> PlaceLists::CitiesOf(std::int32_t countryId) const {
    return ItemsOf(Opened("Select * From city_master where countryid = " + std::to_string(countryId) +
                              " Order by CityName",
                          connection_),
                   "cityName", "CityID");
}

std::optional<Place> PlaceLists::PlaceOfCity(std::string_view cityName) const {
    const Recordset row =
        Opened("Select * from City_Master where CityName = " + Quoted(cityName), connection_);
    if (row.IsEndOfFile()) {
        return std::nullopt;
    }
    return Place{row.Number("LatitudeDegree"),  row.Number("LatitudeMinute"),  row.Text("Latitude_NS"),
                 row.Number("LongitudeDegree"), row.Number("LongitudeMinute"), row.Text("Longitude_EW")};
}

Zone PlaceLists::ZoneNumbered(std::int32_t number) const {
    return ZoneIn(Opened("Select * From TimeZone where Sno = " + std::to_string(number), connection_));
}

} // namespace kelvaro::store
