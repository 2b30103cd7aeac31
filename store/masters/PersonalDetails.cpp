#include "store/masters/PersonalDetails.h"

#include "store/database/Dialect.h"
#include "store/database/Recordset.h"

#include <array>
#include <string_view>

namespace kelvaro::store {

namespace {

struct Column {
    std::string_view name;
    std::string PersonalDetails::*text;
};

constexpr std::array<Column, 8> columns{{
    {"Name", &PersonalDetails::Name},
    {"Address", &PersonalDetails::Address},
    {"Address2", &PersonalDetails::Address2},
    {"City", &PersonalDetails::City},
    {"Country", &PersonalDetails::Country},
    {"Zipcode", &PersonalDetails::Zipcode},
    {"Phone", &PersonalDetails::Phone},
    {"EMail", &PersonalDetails::EMail},
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
        details.*column.text = row.Text(column.name);
    }
    return details;
}

Notice SavePersonalDetails(const PersonalDetails &details, Connection &connection) {
    std::string values;
    for (const Column &column : columns) {
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
