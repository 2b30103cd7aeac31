#include "store/masters/CountryMaster.h"

#include "runtime/CaseFolding.h"
#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/NameCollation.h"
#include "store/database/Recordset.h"
#include "store/database/RowNumbers.h"

#include <algorithm>
#include <string>

namespace kelvaro::store {

namespace {

constexpr const char *newName = "txtAddName";

bool IsNameEmpty(const CountryName &entry) {
    return entry.name.empty();
}

bool IsNameUsed(const CountryName &entry) {
    Recordset rows;
    rows.Open("Select * from Country_Master where CountryName =" + Quoted(entry.name) +
                  std::string(inAnyCase),
              entry.connection);
    return !rows.IsEndOfFile();
}

} // namespace

constexpr std::array<Rule<CountryName>, 3> countryAddRules{{
    {IsNameEmpty, "Enter a Country Name", newName},
    {IsNameUsed, "Country Name already Exists", newName},
    {IsTooLong<&CountryName::name, CountryName>, nameTooLong, newName},
}};

constexpr std::array<Rule<CountryName>, 5> countryRenameRules{{
    {IsNameEmpty, "Enter the New Name", "txtEdit"},
    {[](const CountryName &entry) { return entry.name == entry.chosen.text; }, "No Modifications Done",
     "txtEdit"},
    {IsNameUsed, "Country Name already Exists", "txtEdit"},
    {[](const CountryName &entry) { return entry.chosen.key == 0; }, "Select Country", "lstEditBox"},
    {IsTooLong<&CountryName::name, CountryName>, nameTooLong, "txtEdit"},
}};

std::vector<ListItem> CountryMaster::Countries() const {
    Recordset rows;
    rows.Open("select * from Country_Master order by CountryName" + std::string(inAnyCase), connection_);
    std::vector<ListItem> countries;
    rows.ForEach([&countries](const Recordset &row) {
        countries.push_back({row.Line("countryName"), row.Integer("CountryID")});
    });
    return countries;
}

Found CountryMaster::Search(const std::vector<ListItem> &countries, std::string_view text) {
    const std::string_view beginning = Trimmed(text);
    const auto found = std::ranges::find_if(
        countries, [beginning](const ListItem &country) { return BeginsInAnyCase(country.text, beginning); });
    if (found != countries.end()) {
        return {static_cast<std::size_t>(found - countries.begin()), std::nullopt};
    }
    // An empty list has no first row, which is nothing to tell to someone who searches for nothing.
    return {std::nullopt, beginning.empty() ? std::nullopt : std::optional(Notice{"No Such Country Exists"})};
}

Outcome CountryMaster::Add(std::string_view name) {
    const std::string_view trimmed = Trimmed(name);
    if (auto notice = FirstBroken(countryAddRules, CountryName{connection_, trimmed, {}})) {
        return {false, *notice};
    }
    BringNumbersBack("Country_Master", "CountryID", connection_);
    connection_.Execute("insert into Country_Master([CountryName],[TimeZoneID]) values (" + Quoted(trimmed) +
                        ",'')");
    return {true, {"Details Saved", Notice::Icon::Information, newName}};
}

Outcome CountryMaster::Rename(const ListItem &chosen, std::string_view name) {
    const std::string_view trimmed = Trimmed(name);
    if (auto notice = FirstBroken(countryRenameRules, CountryName{connection_, trimmed, chosen})) {
        return {false, *notice};
    }
    Recordset row;
    row.Open("select * from Country_Master where CountryID = " + std::to_string(chosen.key), connection_);
    row.Assign("CountryName", std::string(trimmed));
    row.Update();
    return {true, {"Successfully Updated"}};
}

} // namespace kelvaro::store
