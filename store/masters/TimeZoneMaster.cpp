#include "store/masters/TimeZoneMaster.h"

#include "runtime/Numbers.h"
#include "store/database/Recordset.h"
#include "store/database/StatementText.h"

#include <array>
#include <cmath>
#include <sstream>

namespace kelvaro::store {

namespace {

using Test = FieldTest<ZoneFields>;

/// The zone's name is asked for as a city, whatever its label says.
constexpr std::array<Test, 7> addTests{{
    {[](const ZoneFields &f) { return f.countryId == 0; }, "Select Country ", "cbAddCountry"},
    {[](const ZoneFields &f) { return IsBlank(f.place); }, "Enter City ", "txtAddCity"},
    {[](const ZoneFields &f) { return IsBlank(f.hours); }, "Enter Time Hours", "txtAddLatDeg"},
    {[](const ZoneFields &f) { return IsBlank(f.minutes); }, "Enter Time Min", "txtAddLAtMin"},
    {[](const ZoneFields &f) { return f.direction.empty(); }, "Enter Zone", "cbAddEW"},
    {[](const ZoneFields &f) { return !IsNumber(f.hours); }, "Enter Number ", "txtAddLatDeg"},
    {[](const ZoneFields &f) { return !IsNumber(f.minutes); }, "Enter Number ", "txtAddLAtMin"},
}};

constexpr std::array<Test, 8> updateTests{{
    {[](const ZoneFields &f) { return f.countryId == 0; }, "Select Country ", "cbEditCountry"},
    {[](const ZoneFields &f) { return f.zoneId == 0; }, "Select Time Zone", "cbEditCity"},
    {[](const ZoneFields &f) { return IsBlank(f.place); }, "Enter Time Zone ", "txtEditCity"},
    {[](const ZoneFields &f) { return IsBlank(f.hours); }, "Enter Hours", "txtEditLatDeg"},
    {[](const ZoneFields &f) { return IsBlank(f.minutes); }, "Enter Minutes", "txtEditLatMIn"},
    {[](const ZoneFields &f) { return f.direction.empty(); }, "Add Zone", "cbEditEW"},
    {[](const ZoneFields &f) { return !IsNumber(f.hours); }, "Enter Number ", "txtEditLatDeg"},
    {[](const ZoneFields &f) { return !IsNumber(f.minutes); }, "Enter Number ", "txtEditLatMIn"},
}};

constexpr std::string_view hoursRange = "Time zones run from 0 to 14 hours.";
constexpr std::string_view minutesRange = "Minutes run from 0 to 59.";

/// No clock is further from Greenwich. These come after all other tests.
constexpr std::array<Test, 2> addRanges{{
    {[](const ZoneFields &f) { return !IsWithin(f.hours, 0, 14); }, hoursRange, "txtAddLatDeg"},
    {[](const ZoneFields &f) { return !IsWithin(f.minutes, 0, 59); }, minutesRange, "txtAddLAtMin"},
}};

/// The minutes are let pass: a zone of 5.75 shows 75 there, and the announcement tells what that means.
constexpr std::array<Test, 1> updateRanges{{
    {addRanges[0].fails, hoursRange, "txtEditLatDeg"},
}};

/// Decimal hours with two places: 5 hours 20 minutes are 5.33.
double OffsetOf(const ZoneFields &fields) {
    constexpr double minutesOfHour = 60;
    constexpr double places = 100;
    const double hours = NumberFromText(fields.hours) + NumberFromText(fields.minutes) / minutesOfHour;
    return std::round(hours * places) / places;
}

/// What stands around the minutes differs between adding and editing, blanks included.
std::string Announcement(const ZoneFields &fields, std::string_view behindHours,
                         std::string_view behindMinutes) {
    std::string text = "Your Entered Time  ";
    text.append(fields.hours).append(behindHours).append(fields.minutes).append(behindMinutes);
    text.append("is saved as  ").append(NumberText(OffsetOf(fields))).append(" hours");
    return text;
}

std::int32_t NewestZone(Connection &connection) {
    Recordset row;
    row.Open("Select Max(SNO) From timeZone ", connection);
    return row.Integer(std::size_t{0});
}

void AppendToCountry(std::int32_t countryId, std::int32_t zone, Connection &connection) {
    const std::string country = std::to_string(countryId);
    Recordset row;
    row.Open("Select TimeZoneId  From Country_Master where CountryID = " + country, connection);
    std::string list = row.Text("TimeZoneId");
    list.append(list.empty() ? "" : ",").append(std::to_string(zone));
    connection.Execute("update Country_Master set TimeZoneID=" + Quoted(list) +
                       " where CountryID=" + country);
}

void Insert(const ZoneFields &fields, Connection &connection) {
    const std::string values =
        Quoted(Trimmed(fields.place)) + "," + NumberText(OffsetOf(fields)) + "," + Quoted(fields.direction);
    // A zone that no country lists could never be chosen.
    Transaction together(connection);
    connection.Execute("insert into TimeZone([Place],[TimeDifference],[TimeZone]) values (" + values + ")");
    AppendToCountry(fields.countryId, NewestZone(connection), connection);
    together.Commit();
}

} // namespace

ZoneList TimeZoneMaster::Zones(std::int32_t countryId) const {
    Recordset country;
    country.Open("select * from Country_Master Where CountryID = " + std::to_string(countryId), connection_);
    std::istringstream numbers(country.Text("TimeZoneID"));
    ZoneList list;
    for (std::string number; std::getline(numbers, number, ',');) {
        Recordset rows;
        rows.Open("select * from TimeZone where SNo = " + number + " order by Place", connection_);
        for (; !rows.IsEndOfFile(); rows.MoveNext()) {
            list.zones.push_back({rows.Text("Place"), rows.Integer("SNo")});
            list.rows.push_back(
                {rows.Text("Place"), rows.Text("SNo"), rows.Text("TimeDifference"), rows.Text("TimeZone")});
        }
    }
    return list;
}

Outcome TimeZoneMaster::Add(const ZoneFields &fields, const Teller &announce) {
    if (auto notice = FirstFailure<ZoneFields>(addTests, fields)) {
        return {false, *notice};
    }
    if (auto notice = FirstFailure<ZoneFields>(addRanges, fields)) {
        return {false, *notice};
    }
    announce({Announcement(fields, "  hours ", "  Minutes ")});
    Insert(fields, connection_);
    return {true, {"Details successfully saved", Notice::Icon::Information, "txtAddCity"}};
}

void TimeZoneMaster::Show(std::int32_t zoneId, ZoneFields &fields) const {
    Recordset row;
    row.Open("Select * from TimeZone where SNO =" + std::to_string(zoneId), connection_);
    const std::string offset = row.Text("TimeDifference");
    const auto point = offset.find('.');
    fields.place = row.Text("Place");
    fields.hours = offset.substr(0, point);
    fields.minutes = point == std::string::npos ? "00" : offset.substr(point + 1);
    fields.direction = row.Text("TimeZone");
}

Outcome TimeZoneMaster::Update(const ZoneFields &fields, const Teller &announce) {
    if (auto notice = FirstFailure<ZoneFields>(updateTests, fields)) {
        return {false, *notice};
    }
    if (auto notice = FirstFailure<ZoneFields>(updateRanges, fields)) {
        return {false, *notice};
    }
    announce({Announcement(fields, "  hours  ", " Minutes  ")});
    Recordset row;
    row.Open("select * from TimeZone where SNo = " + std::to_string(fields.zoneId), connection_);
    row.Assign("Place", std::string(Trimmed(fields.place)));
    row.Assign("TimeDifference", OffsetOf(fields));
    row.Assign("TimeZone", fields.direction);
    row.Update();
    return {true, {"Successfully Updated"}};
}

} // namespace kelvaro::store
