#include "store/masters/CityMaster.h"

#include "runtime/Numbers.h"
#include "store/database/Recordset.h"
#include "store/database/StatementText.h"

#include <algorithm>
#include <array>

namespace kelvaro::store {

namespace {

using Test = FieldTest<CityFields>;

constexpr std::array<Test, 12> addTests{{
    {[](const CityFields &f) { return f.countryId == 0; }, "Select Country ", "cbAddCountry"},
    {[](const CityFields &f) { return IsBlank(f.city); }, "Enter City ", "txtAddCity"},
    {[](const CityFields &f) { return IsBlank(f.latDeg); }, "Enter Lat Deg", "txtAddLatDeg"},
    {[](const CityFields &f) { return IsBlank(f.latMin); }, "Enter Lat Min", "txtAddLAtMin"},
    {[](const CityFields &f) { return f.latNS.empty(); }, "Add Lat Zone", "cbAddNS"},
    {[](const CityFields &f) { return IsBlank(f.lonDeg); }, "Enter Lon Deg", "txtAddLonDeg"},
    {[](const CityFields &f) { return IsBlank(f.lonMin); }, "Enter Lon Min", "txtAddLonMin"},
    {[](const CityFields &f) { return f.lonEW.empty(); }, "Add Lon Zone", "cbAddEW"},
    {[](const CityFields &f) { return !IsNumber(f.latDeg); }, "Enter Number ", "txtAddLatDeg"},
    {[](const CityFields &f) { return !IsNumber(f.latMin); }, "Enter Number ", "txtAddLAtMin"},
    {[](const CityFields &f) { return !IsNumber(f.lonDeg); }, "Enter Number ", "txtAddLonDeg"},
    {[](const CityFields &f) { return !IsNumber(f.lonMin); }, "Enter Number ", "txtAddLonMin"},
}};

/// An empty latitude degree has no test of its own here; the test for a number catches it.
constexpr std::array<Test, 12> updateTests{{
    {[](const CityFields &f) { return f.countryId == 0; }, "Select Country ", "cbEditCountry"},
    {[](const CityFields &f) { return f.cityId == 0; }, "Select CIty", "cbEditCity"},
    {[](const CityFields &f) { return IsBlank(f.city); }, "Enter City ", "txtEditCity"},
    {[](const CityFields &f) { return IsBlank(f.latMin); }, "Enter Lat Min", "txtEditLatMIn"},
    {[](const CityFields &f) { return f.latNS.empty(); }, "Add Lat Zone", "cbEditNS"},
    {[](const CityFields &f) { return IsBlank(f.lonDeg); }, "Enter Lon Deg", "txtEditLonDeg"},
    {[](const CityFields &f) { return IsBlank(f.lonMin); }, "Enter Lon Min", "txtEditLonMin"},
    {[](const CityFields &f) { return f.lonEW.empty(); }, "Add Lon Zone", "cbEditEW"},
    {[](const CityFields &f) { return !IsNumber(f.latDeg); }, "Enter Number ", "txtEditLatDeg"},
    {[](const CityFields &f) { return !IsNumber(f.latMin); }, "Enter Number ", "txtEditLatMIn"},
    {[](const CityFields &f) { return !IsNumber(f.lonDeg); }, "Enter Number ", "txtEditLonDeg"},
    {[](const CityFields &f) { return !IsNumber(f.lonMin); }, "Enter Number ", "txtEditLonMin"},
}};

/// Whether an angle lies beyond the highest degree or has too many minutes of arc.
bool IsBeyond(const std::string &degrees, const std::string &minutes, double highest) {
    constexpr double minutesOfDegree = 60;
    const double angle = NumberFromText(degrees) + NumberFromText(minutes) / minutesOfDegree;
    return NumberFromText(degrees) < 0 || angle > highest;
}

constexpr std::string_view minutesRange = "Minutes run from 0 to 59.";
constexpr std::string_view latitudeRange = "Latitude runs from 0 to 90 degrees.";
constexpr std::string_view longitudeRange = "Longitude runs from 0 to 180 degrees.";

/// A place that does not exist would make wrong horoscopes. These come after all other tests.
constexpr std::array<Test, 4> addRanges{{
    {[](const CityFields &f) { return !IsWithin(f.latMin, 0, 59); }, minutesRange, "txtAddLAtMin"},
    {[](const CityFields &f) { return IsBeyond(f.latDeg, f.latMin, 90); }, latitudeRange, "txtAddLatDeg"},
    {[](const CityFields &f) { return !IsWithin(f.lonMin, 0, 59); }, minutesRange, "txtAddLonMin"},
    {[](const CityFields &f) { return IsBeyond(f.lonDeg, f.lonMin, 180); }, longitudeRange, "txtAddLonDeg"},
}};

constexpr std::array<Test, 4> updateRanges{{
    {addRanges[0].fails, minutesRange, "txtEditLatMIn"},
    {addRanges[1].fails, latitudeRange, "txtEditLatDeg"},
    {addRanges[2].fails, minutesRange, "txtEditLonMin"},
    {addRanges[3].fails, longitudeRange, "txtEditLonDeg"},
}};

/// A number as it is joined into a statement.
std::string NumberIn(const std::string &text) {
    return NumberText(NumberFromText(text));
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

CityList CityMaster::Cities(std::int32_t countryId) const {
    Recordset rows;
    rows.Open("Select * from City_Master where CountryId = " + std::to_string(countryId) +
                  " order by CityName",
              connection_);
    CityList list;
    for (; !rows.IsEndOfFile(); rows.MoveNext()) {
        list.cities.push_back({rows.Text("cityName"), rows.Integer("CityID")});
        list.rows.push_back({rows.Text("cityName"), rows.Text("LatitudeDegree"), rows.Text("Latitude_NS"),
                             rows.Text("LatitudeMinute"), rows.Text("LongitudeDegree"),
                             rows.Text("Longitude_EW"), rows.Text("LongitudeMinute")});
    }
    return list;
}

Outcome CityMaster::Add(const CityFields &fields) {
    if (auto notice = FirstFailure<CityFields>(addTests, fields)) {
        return {false, *notice};
    }
    if (IsNameUsed(fields)) {
        return {false, {"City Details Already Exists", Notice::Icon::Information, "txtAddCity"}};
    }
    if (auto notice = FirstFailure<CityFields>(addRanges, fields)) {
        return {false, *notice};
    }
    connection_.Execute(InsertOf(fields));
    return {true, {"City Details Saved", Notice::Icon::Information, "txtAddCity"}};
}

bool CityMaster::IsNameUsed(const CityFields &fields) const {
    Recordset rows;
    rows.Open("Select * from City_Master where CountryID = " + std::to_string(fields.countryId) +
                  " and CityName= " + Quoted(Trimmed(fields.city)),
              connection_);
    return !rows.IsEndOfFile();
}

void CityMaster::Show(std::string_view cityName, CityFields &fields) const {
    Recordset row;
    row.Open("Select * from City_Master where CityName =" + Quoted(cityName), connection_);
    fields.city = row.Text("CityName");
    fields.latDeg = row.Text("LatitudeDegree");
    fields.latMin = row.Text("LatitudeMinute");
    fields.latNS = row.Text("Latitude_NS");
    fields.lonDeg = row.Text("LongitudeDegree");
    fields.lonMin = row.Text("LongitudeMinute");
    fields.lonEW = row.Text("Longitude_EW");
}

Outcome CityMaster::Update(const CityFields &fields) {
    if (auto notice = FirstFailure<CityFields>(updateTests, fields)) {
        return {false, *notice};
    }
    if (auto notice = FirstFailure<CityFields>(updateRanges, fields)) {
        return {false, *notice};
    }
    Recordset row;
    row.Open("select * from City_Master where CityID = " + std::to_string(fields.cityId), connection_);
    row.Assign("CityName", std::string(Trimmed(fields.city)));
    row.Assign("LatitudeDegree", NumberFromText(fields.latDeg));
    row.Assign("Latitude_NS", fields.latNS);
    row.Assign("LatitudeMinute", NumberFromText(fields.latMin));
    row.Assign("LongitudeDegree", NumberFromText(fields.lonDeg));
    row.Assign("Longitude_EW", fields.lonEW);
    row.Assign("LongitudeMinute", NumberFromText(fields.lonMin));
    row.Update();
    return {true, {"Successfully Updated"}};
}

Found CityMaster::Find(const GridRows &rows, std::string_view text) {
    const std::string_view beginning = Trimmed(text);
    if (beginning.empty()) {
        return {std::nullopt, Notice{"Enter City Name to Search", Notice::Icon::Information, "txtCityName"}};
    }
    const auto found = std::ranges::find_if(
        rows, [beginning](const auto &row) { return BeginsWith(row.front(), beginning); });
    if (found == rows.end()) {
        return {std::nullopt, Notice{"No matches found for the City Name entered", Notice::Icon::Information,
                                     "txtCityName"}};
    }
    return {static_cast<std::size_t>(found - rows.begin()), std::nullopt};
}

} // namespace kelvaro::store
