#include "store/masters/CountryMaster.h"

#include "store/database/Recordset.h"
#include "store/database/StatementText.h"

#include <algorithm>
#include <string>

namespace kelvaro::store {

namespace {

Outcome Refusal(const char *message, const char *focus) {
    return {false, {message, Notice::Icon::Information, focus}};
}

} // namespace

std::vector<ListItem> CountryMaster::Countries() const {
    Recordset rows;
    rows.Open("select * from Country_Master order by CountryName", connection_);
    std::vector<ListItem> countries;
    for (; !rows.IsEndOfFile(); rows.MoveNext()) {
        countries.push_back({rows.Text("countryName"), rows.Integer("CountryID")});
    }
    return countries;
}

Found CountryMaster::Search(const std::vector<ListItem> &countries, std::string_view text) {
    const std::string_view beginning = Trimmed(text);
    const auto found = std::ranges::find_if(
        countries, [beginning](const ListItem &country) { return BeginsWith(country.text, beginning); });
    if (found != countries.end()) {
        return {static_cast<std::size_t>(found - countries.begin()), std::nullopt};
    }
    // An empty list has no first row, which is nothing to tell to someone who searches for nothing.
    return {std::nullopt, beginning.empty() ? std::nullopt : std::optional(Notice{"No Such Country Exists"})};
}

Outcome CountryMaster::Add(std::string_view name) {
    const std::string_view trimmed = Trimmed(name);
    if (trimmed.empty()) {
        return Refusal("Enter a Country Name", "txtAddName");
    }
    if (IsNameUsed(trimmed)) {
        return Refusal("Country Name already Exists", "txtAddName");
    }
    connection_.Execute("insert into Country_Master([CountryName],[TimeZoneID]) values (" + Quoted(trimmed) +
                        ",'')");
    return {true, {"Details Saved", Notice::Icon::Information, "txtAddName"}};
}

Outcome CountryMaster::Rename(const ListItem &chosen, std::string_view name) {
    const std::string_view trimmed = Trimmed(name);
    if (trimmed.empty()) {
        return Refusal("Enter the New Name", "txtEdit");
    }
    if (trimmed == chosen.text) {
        return Refusal("No Modifications Done", "txtEdit");
    }
    if (IsNameUsed(trimmed)) {
        return Refusal("Country Name already Exists", "txtEdit");
    }
    if (chosen.key == 0) {
        return Refusal("Select Country", "lstEditBox");
    }
    Recordset row;
    row.Open("select * from Country_Master where CountryID = " + std::to_string(chosen.key), connection_);
    row.Assign("CountryName", std::string(trimmed));
    row.Update();
    return {true, {"Successfully Updated"}};
}

bool CountryMaster::IsNameUsed(std::string_view name) const {
    Recordset rows;
    rows.Open("Select * from Country_Master where CountryName =" + Quoted(name), connection_);
    return !rows.IsEndOfFile();
}

} // namespace kelvaro::store
