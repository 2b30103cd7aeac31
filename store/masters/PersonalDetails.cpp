#include "store/masters/PersonalDetails.h"

#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/Recordset.h"

#include <array>
#include <string_view>

namespace kelvaro::store {

namespace {

struct Column {
    std::string_view name;
    std::string PersonalDetails::*text;
    std::string_view control; ///< of the dialog of the letterhead
};

constexpr std::array<Column, 8> columns{{
    {"Name", &PersonalDetails::Name, "txtName"},
    {"Address", &PersonalDetails::Address, "txtAdd"},
    {"Address2", &PersonalDetails::Address2, "txtAdd2"},
    {"City", &PersonalDetails::City, "txtCity"},
    {"Country", &PersonalDetails::Country, "txtCountry"},
    {"Zipcode", &PersonalDetails::Zipcode, "txtZip"},
    {"Phone", &PersonalDetails::Phone, "txtPhone"},
    {"EMail", &PersonalDetails::EMail, "txtEmail"},
}};

} // namespace

PersonalDetails ReadPersonalDetails(Connection &connection) {
    PersonalDetails details;
    Recordset row;
    row.Open("Select * from PersonalDetails", connection);
    if (row.IsEndOfFile()) {
        details.Name = "Kelvaro Technologies Pvt Ltd";
        return details;
    }
    for (const Column &column : columns) {
        details.*column.text = row.Line(column.name);
    }
    return details;
}

Notice SavePersonalDetails(const PersonalDetails &details, Connection &connection) {
    std::string values;
    for (const Column &column : columns) {
        if (CharactersIn(details.*column.text) > longestName) {
            return {"A line of the letterhead has at most 255 characters.", Notice::Icon::Information,
                    std::string(column.control)};
        }
        values.append(values.empty() ? "" : ",").append(Quoted(details.*column.text));
    }
    Transaction together(connection);
    DeletePersonalDetails(connection);
    connection.Execute(
        "insert into PersonalDetails(Name,Address,Address2,City,Country,Zipcode,Phone,EMail) values  (" +
        values + ")");
    together.Commit();
    return {"Details Saved"};
}

void DeletePersonalDetails(Connection &connection) {
    connection.Execute("delete * from PersonalDetails");
}

} // namespace kelvaro::store
