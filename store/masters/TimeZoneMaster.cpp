#include "store/masters/TimeZoneMaster.h"

#include "runtime/Numbers.h"
#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/Recordset.h"
#include "store/database/RowNumbers.h"

#include <cmath>

namespace kelvaro::store {

namespace {

using ZoneRule = Rule<ZoneFields>;

constexpr const char *nameOfNewZone = "txtAddCity";
constexpr std::string_view hoursRange = "Time zones run from 0 to 14 hours.";

bool LacksCountry(const ZoneFields &fields) {
    return fields.countryId == 0;
}

/// No clock is further from Greenwich.
constexpr double furthest = 14;

bool HasWrongHours(const ZoneFields &fields) {
    return !IsWithin(fields.hours, 0, furthest);
}

/// Decimal hours with two places: 5 hours 20 minutes are 5.33.
double OffsetOf(const ZoneFields &fields) {
    constexpr double minutesOfHour = 60;
    constexpr double places = 100;
    const double hours = NumberFromText(fields.hours) + NumberFromText(fields.minutes) / minutesOfHour;
    return std::round(hours * places) / places;
}

/// Hours that are right by themselves and go too far with their minutes.
bool HasWrongOffset(const ZoneFields &fields) {
    return NumberFromText(fields.minutes) < 0 || OffsetOf(fields) > furthest;
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
    BringNumbersBack("TimeZone", "SNo", connection);
    connection.Execute("insert into TimeZone([Place],[TimeDifference],[TimeZone]) values (" + values + ")");
    AppendToCountry(fields.countryId, NewestZone(connection), connection);
    together.Commit();
}

} // namespace

/// The zone's name is asked for as a city, whatever its label says.
constexpr std::array<ZoneRule, 11> zoneAddRules{{
    {LacksCountry, "Select Country ", "cbAddCountry"},
    {LacksText<&ZoneFields::place>, "Enter City ", nameOfNewZone},
    {LacksText<&ZoneFields::hours>, "Enter Time Hours", "txtAddLatDeg"},
    {LacksText<&ZoneFields::minutes>, "Enter Time Min", "txtAddLAtMin"},
    {LacksText<&ZoneFields::direction>, "Enter Zone", "cbAddEW"},
    {LacksNumber<&ZoneFields::hours>, "Enter Number ", "txtAddLatDeg"},
    {LacksNumber<&ZoneFields::minutes>, "Enter Number ", "txtAddLAtMin"},
    {HasWrongHours, hoursRange, "txtAddLatDeg"},
    {[](const ZoneFields &f) { return !IsWithin(f.minutes, 0, 59); }, "Minutes run from 0 to 59.",
     "txtAddLAtMin"},
    {HasWrongOffset, hoursRange, "txtAddLAtMin"},
    {IsTooLong<&ZoneFields::place>, nameTooLong, nameOfNewZone},
}};

/// The minutes have no range of their own: a zone of 5.75 shows 75 there, and the announcement tells what
/// that means.
constexpr std::array<ZoneRule, 11> zoneUpdateRules{{
    {LacksCountry, "Select Country ", "cbEditCountry"},
    {[](const ZoneFields &f) { return f.zoneId == 0; }, "Select Time Zone", "cbEditCity"},
    {LacksText<&ZoneFields::place>, "Enter Time Zone ", "txtEditCity"},
    {LacksText<&ZoneFields::hours>, "Enter Hours", "txtEditLatDeg"},
    {LacksText<&ZoneFields::minutes>, "Enter Minutes", "txtEditLatMIn"},
    {LacksText<&ZoneFields::direction>, "Add Zone", "cbEditEW"},
    {LacksNumber<&ZoneFields::hours>, "Enter Number ", "txtEditLatDeg"},
    {LacksNumber<&ZoneFields::minutes>, "Enter Number ", "txtEditLatMIn"},
    {HasWrongHours, hoursRange, "txtEditLatDeg"},
    {HasWrongOffset, hoursRange, "txtEditLatMIn"},
    {IsTooLong<&ZoneFields::place>, nameTooLong, "txtEditCity"},
}};

MasterRows TimeZoneMaster::Zones(std::int32_t countryId) const {
    MasterRows list;
    for (const Zone &zone : PlaceLists(connection_).ZonesOf(countryId)) {
        list.items.push_back({zone.place, zone.number});
        list.rows.push_back(
            {zone.place, std::to_string(zone.number), NumberText(zone.hours), zone.direction});
    }
    return list;
}

Outcome TimeZoneMaster::Add(const ZoneFields &fields, const Teller &announce) {
    if (auto notice = FirstBroken(zoneAddRules, fields)) {
        return {false, *notice};
    }
    announce({Announcement(fields, "  hours ", "  Minutes ")});
    Insert(fields, connection_);
    return {true, {"Details successfully saved", Notice::Icon::Information, nameOfNewZone}};
}

void TimeZoneMaster::Show(std::int32_t zoneId, ZoneFields &fields) const {
    Recordset row;
    row.Open("Select * from TimeZone where SNO =" + std::to_string(zoneId), connection_);
    const std::string offset = row.Line("TimeDifference");
    const auto point = offset.find('.');
    fields.place = row.Line("Place");
    fields.hours = offset.substr(0, point);
    fields.minutes = point == std::string::npos ? "00" : offset.substr(point + 1);
    fields.direction = row.Line("TimeZone");
}

Outcome TimeZoneMaster::Update(const ZoneFields &fields, const Teller &announce) {
    if (auto notice = FirstBroken(zoneUpdateRules, fields)) {
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
