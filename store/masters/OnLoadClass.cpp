#include "store/masters/OnLoadClass.h"

#include "store/database/Recordset.h"

namespace kelvaro::store {

namespace {

Recordset OpenedRow(std::string_view statement, Connection &connection) {
    Recordset preferences;
    preferences.Open(statement, connection);
    return preferences;
}

} // namespace

std::string OnLoadClass::ConstringVal() const {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + ClsPath + "\\DBMirvaneMatch.mdb";
}

void OnLoadClass::FnPreferences(Connection &connection) {
    const Recordset preferences = OpenedRow("Select * From Preference", connection);
    clsDays_in_a_Year = preferences.Number("DayinYear");
    clsChart_Type = preferences.Line("ChartStyle");
    clsLanguage = preferences.Line("PreferLanguage");
    clsAyanamsa = preferences.Line("Ayanamsa");
    clsBhava = preferences.Line("Bhava");
    clsYear = preferences.Number("customYear");
    clsProgress = preferences.Number("customProgress");
}

void OnLoadClass::Store(Connection &connection) const {
    Recordset preferences = OpenedRow("select * from Preference where PreID = '1'", connection);
    preferences.Assign("Ayanamsa", clsAyanamsa);
    preferences.Assign("Bhava", clsBhava);
    preferences.Assign("DayInYear", clsDays_in_a_Year);
    preferences.Assign("ChartStyle", clsChart_Type);
    preferences.Assign("Preferlanguage", clsLanguage);
    preferences.Assign("CustomYear", clsYear);
    preferences.Assign("CustomProgress", clsProgress);
    preferences.Update();
}

} // namespace kelvaro::store
