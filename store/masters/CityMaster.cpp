#include "store/masters/CityMaster.h"

#include "runtime/CaseFolding.h"
#include "runtime/Numbers.h"
#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/NameCollation.h"
#include "store/database/Recordset.h"
#include "store/database/RowNumbers.h"
#include "store/masters/CityZones.h"

#include <algorithm>

namespace kelvaro::store {

namespace {

using CityRule = Rule<CityFields>;

constexpr const char *nameOfNewCity = "txtAddCity";

bool LacksCountry(const CityFields &fields) {
    return fields.countryId == 0;
}

template <auto minutes> bool HasWrongMinutes(const CityFields &fields) {
    return !IsWithin(fields.*minutes, 0, 59);
}

/// Whether an angle is negative or beyond the highest degree.
template <auto degrees, auto minutes, int highest> bool IsBeyond(const CityFields &fields) {
    constexpr double minutesOfDegree = 60;
    const double whole = NumberFromText(fields.*degrees);
    return whole < 0 || whole + NumberFromText(fields.*minutes) / minutesOfDegree > highest;
}

constexpr auto isBeyondPole = IsBeyond<&CityFields::latDeg, &CityFields::latMin, 90>;
constexpr auto isBeyondAntimeridian = IsBeyond<&CityFields::lonDeg, &CityFields::lonMin, 180>;
constexpr std::string_view minutesRange = "Minutes run from 0 to 59.";
constexpr std::string_view latitudeRange = "Latitude runs from 0 to 90 degrees.";
constexpr std::string_view longitudeRange = "Longitude runs from 0 to 180 degrees.";

/// A number as it is joined into a statement.
std::string NumberIn(const std::string &text) {
    return NumberText(NumberFromText(text));
}

bool HasMoved(const Recordset &row, const CityFields &fields) {
    return row.Number("LatitudeDegree") != NumberFromText(fields.latDeg) ||
           row.Number("LatitudeMinute") != NumberFromText(fields.latMin) ||
           row.Text("Latitude_NS") != fields.latNS ||
           row.Number("LongitudeDegree") != NumberFromText(fields.lonDeg) ||
           row.Number("LongitudeMinute") != NumberFromText(fields.lonMin) ||
           row.Text("Longitude_EW") != fields.lonEW;
}

std::string InsertOf(const CityFields &fields) {
    std::string values = Quoted(Trimmed(fields.city));
    for (const std::string &value :
         {std::to_string(fields.countryId), NumberIn(fields.latDeg), Quoted(fields.latNS),
          NumberIn(fields.latMin), NumberIn(fields.lonDeg), Quoted(fields.lonEW), NumberIn(fields.lonMin)}) {
        values.append(",").append(value);
    }
    return "insert into City_MAster([CityName],[CountryID],[LatitudeDegree],[Latitude_NS],[LatitudeMinute],"
           "[LongitudeDegree],[Longitude_EW],[LongitudeMinute]) values (" +
           values + ")";
}

} // namespace

constexpr std::array<CityRule, 12> cityAddRules{{
    {LacksCountry, "Select Country ", "cbAddCountry"},
    {LacksText<&CityFields::city>, "Enter City ", nameOfNewCity},
    {LacksText<&CityFields::latDeg>, "Enter Lat Deg", "txtAddLatDeg"},
    {LacksText<&CityFields::latMin>, "Enter Lat Min", "txtAddLAtMin"},
    {LacksText<&CityFields::latNS>, "Add Lat Zone", "cbAddNS"},
    {LacksText<&CityFields::lonDeg>, "Enter Lon Deg", "txtAddLonDeg"},
    {LacksText<&CityFields::lonMin>, "Enter Lon Min", "txtAddLonMin"},
    {LacksText<&CityFields::lonEW>, "Add Lon Zone", "cbAddEW"},
    {LacksNumber<&CityFields::latDeg>, "Enter Number ", "txtAddLatDeg"},
    {LacksNumber<&CityFields::latMin>, "Enter Number ", "txtAddLAtMin"},
    {LacksNumber<&CityFields::lonDeg>, "Enter Number ", "txtAddLonDeg"},
    {LacksNumber<&CityFields::lonMin>, "Enter Number ", "txtAddLonMin"},
}};

/// A place that does not exist would make wrong horoscopes.
constexpr std::array<CityRule, 5> cityAddRanges{{
    {IsTooLong<&CityFields::city>, nameTooLong, nameOfNewCity},
    {HasWrongMinutes<&CityFields::latMin>, minutesRange, "txtAddLAtMin"},
    {isBeyondPole, latitudeRange, "txtAddLatDeg"},
    {HasWrongMinutes<&CityFields::lonMin>, minutesRange, "txtAddLonMin"},
    {isBeyondAntimeridian, longitudeRange, "txtAddLonDeg"},
}};

/// An empty latitude degree has no rule of its own here; the one for a number catches it.
constexpr std::array<CityRule, 17> cityUpdateRules{{
    {LacksCountry, "Select Country ", "cbEditCountry"},
    {[](const CityFields &f) { return f.cityId == 0; }, "Select CIty", "cbEditCity"},
    {LacksText<&CityFields::city>, "Enter City ", "txtEditCity"},
    {LacksText<&CityFields::latMin>, "Enter Lat Min", "txtEditLatMIn"},
    {LacksText<&CityFields::latNS>, "Add Lat Zone", "cbEditNS"},
    {LacksText<&CityFields::lonDeg>, "Enter Lon Deg", "txtEditLonDeg"},
    {LacksText<&CityFields::lonMin>, "Enter Lon Min", "txtEditLonMin"},
    {LacksText<&CityFields::lonEW>, "Add Lon Zone", "cbEditEW"},
    {LacksNumber<&CityFields::latDeg>, "Enter Number ", "txtEditLatDeg"},
    {LacksNumber<&CityFields::latMin>, "Enter Number ", "txtEditLatMIn"},
    {LacksNumber<&CityFields::lonDeg>, "Enter Number ", "txtEditLonDeg"},
    {LacksNumber<&CityFields::lonMin>, "Enter Number ", "txtEditLonMin"},
    {IsTooLong<&CityFields::city>, nameTooLong, "txtEditCity"},
    {HasWrongMinutes<&CityFields::latMin>, minutesRange, "txtEditLatMIn"},
    {isBeyondPole, latitudeRange, "txtEditLatDeg"},
    {HasWrongMinutes<&CityFields::lonMin>, minutesRange, "txtEditLonMin"},
    {isBeyondAntimeridian, longitudeRange, "txtEditLonDeg"},
}};

MasterRows CityMaster::Cities(std::int32_t countryId) const {
    Recordset rows;
    rows.Open("Select * from City_Master where CountryId = " + std::to_string(countryId) +
                  " order by CityName" + std::string(inAnyCase),
              connection_);
    MasterRows list;
    rows.ForEach([&list](const Recordset &row) {
        list.items.push_back({row.Line("cityName"), row.Integer("CityID")});
        list.rows.push_back({row.Line("cityName"), row.Line("LatitudeDegree"), row.Line("Latitude_NS"),
                             row.Line("LatitudeMinute"), row.Line("LongitudeDegree"),
                             row.Line("Longitude_EW"), row.Line("LongitudeMinute")});
    });
    return list;
}

Outcome CityMaster::Add(const CityFields &fields) {
    if (auto notice = FirstBroken(cityAddRules, fields)) {
        return {false, *notice};
    }
    if (IsNameUsed(fields)) {
        return {false, {"City Details Already Exists", Notice::Icon::Information, nameOfNewCity}};
    }
    if (auto notice = FirstBroken(cityAddRanges, fields)) {
        return {false, *notice};
    }
    BringNumbersBack("City_Master", "CityID", connection_);
    connection_.Execute(InsertOf(fields));
    return {true, {"City Details Saved", Notice::Icon::Information, nameOfNewCity}};
}

bool CityMaster::IsNameUsed(const CityFields &fields) const {
    Recordset rows;
    rows.Open("Select * from City_Master where CountryID = " + std::to_string(fields.countryId) +
                  " and CityName= " + Quoted(Trimmed(fields.city)) + std::string(inAnyCase),
              connection_);
    return !rows.IsEndOfFile();
}

void CityMaster::Show(const ListItem &city, CityFields &fields) const {
    Recordset row;
    row.Open("Select * from City_Master where CityName =" + Quoted(city.text) + std::string(inAnyCase),
             connection_);
    if (row.IsEndOfFile()) {
        row.Close();
        row.Open("Select * from City_Master where CityID =" + std::to_string(city.key), connection_);
    }
    fields.city = row.Line("CityName");
    fields.latDeg = row.Line("LatitudeDegree");
    fields.latMin = row.Line("LatitudeMinute");
    fields.latNS = row.Line("Latitude_NS");
    fields.lonDeg = row.Line("LongitudeDegree");
    fields.lonMin = row.Line("LongitudeMinute");
    fields.lonEW = row.Line("Longitude_EW");
}

Outcome CityMaster::Update(const CityFields &fields) {
    if (auto notice = FirstBroken(cityUpdateRules, fields)) {
        return {false, *notice};
    }
    Recordset row;
    row.Open("select * from City_Master where CityID = " + std::to_string(fields.cityId), connection_);
    const bool hasMoved = HasMoved(row, fields);
    row.Assign("CityName", std::string(Trimmed(fields.city)));
    row.Assign("LatitudeDegree", NumberFromText(fields.latDeg));
    row.Assign("Latitude_NS", fields.latNS);
    row.Assign("LatitudeMinute", NumberFromText(fields.latMin));
    row.Assign("LongitudeDegree", NumberFromText(fields.lonDeg));
    row.Assign("Longitude_EW", fields.lonEW);
    row.Assign("LongitudeMinute", NumberFromText(fields.lonMin));
    Transaction together(connection_);
    row.Update();
    if (hasMoved) {
        CityZones(connection_).Forget(fields.cityId);
    }
    together.Commit();
    return {true, {"Successfully Updated"}};
}

Found CityMaster::Find(const GridRows &rows, std::string_view text) {
    const std::string_view beginning = Trimmed(text);
    if (beginning.empty()) {
        return {std::nullopt, Notice{"Enter City Name to Search", Notice::Icon::Information, "txtCityName"}};
    }
    const auto found = std::ranges::find_if(
        rows, [beginning](const auto &row) { return BeginsInAnyCase(row.front(), beginning); });
    if (found == rows.end()) {
        return {std::nullopt, Notice{"No matches found for the City Name entered", Notice::Icon::Information,
                                     "txtCityName"}};
    }
    return {static_cast<std::size_t>(found - rows.begin()), std::nullopt};
}

} // namespace kelvaro::store
